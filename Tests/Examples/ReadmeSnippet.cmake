# The README's code block that follows the line "<!-- NAME -->" is the file
# FILE to the character, so that what readers copy is what the build tests.
#   cmake -DREADME=README.md -DFILE=path/to/file -DNAME=shown/name -P ReadmeSnippet.cmake
file(READ ${README} _readme)
file(READ ${FILE} _file)
set(_marker "<!-- ${NAME} -->\n```cpp\n")
string(FIND "${_readme}" "${_marker}" _start)
if(_start EQUAL -1)
  message(FATAL_ERROR "${README} has no code block marked <!-- ${NAME} -->")
endif()
string(LENGTH "${_marker}" _length)
math(EXPR _start "${_start} + ${_length}")
string(SUBSTRING "${_readme}" ${_start} -1 _rest)
string(FIND "${_rest}" "```\n" _end)
string(SUBSTRING "${_rest}" 0 ${_end} _snippet)
if(NOT _snippet STREQUAL _file)
  message(FATAL_ERROR "the code block of ${NAME} in ${README} differs from ${FILE}:\n${_snippet}")
endif()
