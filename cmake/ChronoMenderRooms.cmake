# chronomender_room(<name> SOURCES … [USES rooms and libraries…])
# One static library a room. A room's folder is the include path of exactly those that use the room,
# so a header of a room that is not used cannot be included by accident.
function(chronomender_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ROOM_USES} PRIVATE chronomender_options)
endfunction()

# chronomender_test(<room> SOURCES … [USES …]): one test program a room, one CTest label a room.
function(chronomender_test room)
  cmake_parse_arguments(TEST "" "" "SOURCES;USES" ${ARGN})
  add_executable(${room}_tests ${TEST_SOURCES})
  target_link_libraries(${room}_tests PRIVATE ${room} ${TEST_USES} test_support GTest::gmock
                        GTest::gtest_main chronomender_options)
  gtest_discover_tests(${room}_tests DISCOVERY_TIMEOUT 60 PROPERTIES LABELS ${room} TIMEOUT 240)
endfunction()
