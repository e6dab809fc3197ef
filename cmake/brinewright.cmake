# A library of this tree: every source of its folder, warnings on, headers found from the root.
function(brinewright_library Name Folder)
  file(GLOB Sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${Folder}/*.cpp)
  add_library(${Name} STATIC ${Sources})
  target_link_libraries(${Name} PUBLIC brinewright_options ${ARGN})
endfunction()

# The tests of one folder, tests/<Folder>/*.cpp, as one program under ctest.
function(brinewright_tests Folder)
  file(GLOB Sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${Folder}/*.cpp)
  if(NOT Sources)
    return()
  endif()
  set(Name test_${Folder})
  add_executable(${Name} ${Sources})
  target_link_libraries(${Name} PRIVATE ${ARGN} GTest::gtest_main)
  target_compile_definitions(${Name} PRIVATE BRINEWRIGHT_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  gtest_discover_tests(${Name} TEST_PREFIX "${Folder}/" DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
endfunction()
