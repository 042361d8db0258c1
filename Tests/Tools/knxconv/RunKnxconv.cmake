# Runs knxconv once and checks its exit status, standard output and standard
# error. Called by CTest as
#   cmake -DPROGRAM=... [-DEMULATOR=...] -DARGS=a|b|c -DSTATUS=n
#         [-DSTDOUT=line | -DSTDOUT_FILE=file | -DSTDOUT_REGEX=re | -DSTDOUT_EMPTY=ON]
#         [-DSTDERR=line | -DSTDERR_REGEX=re | -DSTDERR_EMPTY=ON] [-DSTDIN_FILE=file]
#         [-DSTDOUT_DEVICE=path] -P RunKnxconv.cmake
# Lists are joined with "|" so that arguments may hold blanks; in the
# expected texts, @LF@ stands for a line end and @SEMICOLON@ for ';'. STDOUT_DEVICE
# sends standard output to a device such as /dev/full (through the shell, as a
# user would); where the device does not exist the test is skipped.
string(REPLACE "|" ";" _args "${ARGS}")
foreach(_key STDOUT STDOUT_REGEX STDERR STDERR_REGEX)
  if(DEFINED ${_key})
    string(REPLACE "@LF@" "\n" ${_key} "${${_key}}")
    string(REPLACE "@SEMICOLON@" ";" ${_key} "${${_key}}")
  endif()
endforeach()
string(REPLACE "|" ";" _emulator "${EMULATOR}")
set(_input)
if(STDIN_FILE)
  set(_input INPUT_FILE ${STDIN_FILE})
endif()

if(STDOUT_DEVICE)
  if(NOT EXISTS ${STDOUT_DEVICE})
    message("SKIPPED: ${STDOUT_DEVICE} does not exist")
    return()
  endif()
  # Each word quoted for the shell; the arguments hold no single quotes.
  set(_command)
  foreach(_word IN LISTS _emulator ITEMS ${PROGRAM} ${_args})
    string(APPEND _command " '${_word}'")
  endforeach()
  execute_process(COMMAND sh -c "exec ${_command} > ${STDOUT_DEVICE}" ${_input}
                  ERROR_VARIABLE _err RESULT_VARIABLE _status)
  set(_out)
else()
  execute_process(COMMAND ${_emulator} ${PROGRAM} ${_args} ${_input}
                  OUTPUT_VARIABLE _out ERROR_VARIABLE _err RESULT_VARIABLE _status)
endif()

set(_failures)
if(NOT "${_status}" STREQUAL "${STATUS}")
  list(APPEND _failures "exit status ${_status}, expected ${STATUS}")
endif()
if(DEFINED STDOUT AND NOT "${_out}" STREQUAL "${STDOUT}\n")
  list(APPEND _failures "standard output differs from:\n${STDOUT}")
endif()
if(STDOUT_FILE)
  file(READ ${STDOUT_FILE} _expected)
  if(NOT "${_out}" STREQUAL "${_expected}")
    file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/knxconv-actual-output.txt "${_out}")
    list(APPEND _failures "standard output differs from ${STDOUT_FILE} (actual output in ${CMAKE_CURRENT_BINARY_DIR}/knxconv-actual-output.txt)")
  endif()
endif()
if(DEFINED STDOUT_REGEX AND NOT "${_out}" MATCHES "${STDOUT_REGEX}")
  list(APPEND _failures "standard output does not match: ${STDOUT_REGEX}")
endif()
if(STDOUT_EMPTY AND NOT "${_out}" STREQUAL "")
  list(APPEND _failures "standard output is not empty")
endif()
if(DEFINED STDERR AND NOT "${_err}" STREQUAL "${STDERR}\n")
  list(APPEND _failures "standard error differs from:\n${STDERR}")
endif()
if(DEFINED STDERR_REGEX AND NOT "${_err}" MATCHES "${STDERR_REGEX}")
  list(APPEND _failures "standard error does not match: ${STDERR_REGEX}")
endif()
if(STDERR_EMPTY AND NOT "${_err}" STREQUAL "")
  list(APPEND _failures "standard error is not empty")
endif()

if(_failures)
  string(JOIN "\n" _report ${_failures})
  message(FATAL_ERROR "knxconv ${_args}\n${_report}\n--- standard output:\n${_out}--- standard error:\n${_err}")
endif()
