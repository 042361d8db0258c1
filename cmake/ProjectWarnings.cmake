# Warnings are errors for the project's own code only; third-party code
# (GoogleTest built from source when cross-compiling) keeps its own flags.
function(knxconv_set_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror)
endfunction()
