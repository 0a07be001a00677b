# cmake -DSOURCE=... -DTARGET=... -P windows_text.cmake
# Makes a text of a UTF-8 source as Notepad has read it since Windows 2000: lines end with CR LF, and
# a byte order mark comes first where the text is more than ASCII. Of Markdown, the signs of headings
# and of code go.
file(READ ${SOURCE} text)
if(SOURCE MATCHES "\\.md$")
  string(REGEX REPLACE "(^|\n)#+ " "\\1" text "${text}")
  string(REPLACE "`" "" text "${text}")
endif()
string(REPLACE "\r\n" "\n" text "${text}")
string(REPLACE "\n" "\r\n" text "${text}")
if(text MATCHES "[^\r\n -~]")
  string(ASCII 239 187 191 mark)
  string(PREPEND text "${mark}")
endif()
file(WRITE ${TARGET} "${text}")
