add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
if(MSVC)
  add_compile_options(/W4 /utf-8 $<$<BOOL:${PLAKERA_WERROR}>:/WX>)
else()
  # Windows' headers give everybody a global "byte", in rooms compiled together the other sources too.
  add_compile_options(-Wall -Wextra $<IF:$<BOOL:${WIN32}>,-Wshadow=local,-Wshadow> -Wnon-virtual-dtor
                      -Woverloaded-virtual $<$<BOOL:${PLAKERA_WERROR}>:-Werror>)
endif()
if(PLAKERA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(PLAKERA_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "PLAKERA_FUZZ needs clang")
  endif()
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined
                      -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
