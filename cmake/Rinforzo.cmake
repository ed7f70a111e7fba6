# A release is hardened as Debian hardens its packages; position-independent its compilers make it
# unasked.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_BUILD_TYPE MATCHES "^Rel" AND NOT PLAKERA_SANITIZE)
  add_compile_options(-fstack-protector-strong -fstack-clash-protection -Wformat
                      -Werror=format-security -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64|i.86")
    add_compile_options(-fcf-protection)
  endif()
  add_link_options(-Wl,-z,relro -Wl,-z,now)
endif()
