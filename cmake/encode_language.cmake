# cmake -DSOURCE=... -DTARGET=... -P encode_language.cmake
# Makes a language file of its readable source: drops comments and empty lines, ends lines with
# CR LF, and encodes UTF-8 as the single-byte code page of Western European Windows.
file(READ ${SOURCE} text)
string(REGEX REPLACE "\n#[^\n]*" "" text "\n${text}")
string(REGEX REPLACE "\n\n+" "\n" text "${text}")
string(REGEX REPLACE "^\n" "" text "${text}")
foreach(code RANGE 160 255)
  string(ASCII ${code} byte)
  if(code LESS 192)
    string(ASCII 194 ${code} utf8)
  else()
    math(EXPR last "${code} - 64")
    string(ASCII 195 ${last} utf8)
  endif()
  string(REPLACE "${utf8}" "${byte}" text "${text}")
endforeach()
string(REPLACE "\n" "\r\n" text "${text}")
file(WRITE ${TARGET} "${text}")
