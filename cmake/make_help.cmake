# cmake -DGUIDE=... -DSTYLE=... -DLANGUAGE=... -DVERSION=... -DTARGET=... -P make_help.cmake
# Makes the help that ships of the guide in one language: the frame around the text, with the style
# sheet of the site inside, so that the page needs nothing but the pictures beside it.
file(READ ${GUIDE}/frame.html page)
file(READ ${GUIDE}/${LANGUAGE}.html body)
file(READ ${STYLE} style)
string(REPLACE "\${body}" "${body}" page "${page}")
string(REPLACE "\${style}" "${style}" page "${page}")
string(REPLACE "\${language}" "${LANGUAGE}" page "${page}")
string(REPLACE "\${pictures}" "pictures/" page "${page}")
string(REPLACE "\${version}" "${VERSION}" page "${page}")
if(page MATCHES "\\$[a-z{]+")
  message(FATAL_ERROR "The guide (${LANGUAGE}) has an unknown ${CMAKE_MATCH_0}")
endif()
file(WRITE ${TARGET} "${page}")
