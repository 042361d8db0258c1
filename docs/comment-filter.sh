#!/bin/sh
# Doxygen's input filter: the headers' plain comment lines ("// ...") are
# their documentation, so they are read as "/// ..."; tool directives
# (clang-format, NOLINT) and comments after code stay plain.
exec sed -e '/\/\/ *\(clang-format\|NOLINT\)/b' -e 's#^\([[:space:]]*\)//\([^/!]\|$\)#\1///\2#' "$1"
