# Declares one room: every source in the folder, and the rooms and Qt modules it may use.
function(stanza nome)
  file(GLOB sorgenti CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${nome}/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/${nome}/*.h ${CMAKE_CURRENT_SOURCE_DIR}/${nome}/*.ui
       ${CMAKE_CURRENT_SOURCE_DIR}/${nome}/*.qrc)
  add_library(plakera_${nome} STATIC ${sorgenti})
  target_include_directories(plakera_${nome} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(plakera_${nome} PUBLIC ${ARGN})
endfunction()
