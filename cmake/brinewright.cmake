# Several sources of a folder are compiled as one, which takes half the time. Layouts of windows stand alone: their short words (Row,
# Column, Fields) are taken by others too.
function(brinewright_unity Name Folder)
  set_target_properties(${Name} PROPERTIES UNITY_BUILD ${BRINEWRIGHT_UNITY} UNITY_BUILD_BATCH_SIZE 8)
  file(GLOB Layouts ${CMAKE_SOURCE_DIR}/${Folder}/*_layout.cpp ${CMAKE_SOURCE_DIR}/${Folder}/layout.cpp)
  set_source_files_properties(${Layouts} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

# A library of this tree: every source of its folder, warnings on, headers found from the root.
function(brinewright_library Name Folder)
  file(GLOB Sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${Folder}/*.cpp)
  if(Sources)
    add_library(${Name} STATIC ${Sources})
    target_link_libraries(${Name} PUBLIC brinewright_options ${ARGN})
    brinewright_unity(${Name} ${Folder})
  else() # records only
    add_library(${Name} INTERFACE)
    target_link_libraries(${Name} INTERFACE brinewright_options ${ARGN})
  endif()
endfunction()

# The same for a folder of ui/, which sees the toolkit.
function(brinewright_ui_library Name Folder)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
  brinewright_library(${Name} ${Folder} ${ARGN} Qt6::Widgets)
  set_target_properties(${Name} PROPERTIES AUTOMOC ON)
  target_compile_definitions(${Name} PUBLIC QT_NO_KEYWORDS)
  # The toolkit's headers come with conversions of their own.
  target_include_directories(${Name} SYSTEM PUBLIC ${Qt6Widgets_INCLUDE_DIRS})
endfunction()

# The name of the library of a folder: brinewright_shell_kit of shell/kit.
function(brinewright_library_name Folder Result)
  string(REPLACE "/" "_" Name "brinewright_${Folder}")
  set(${Result} ${Name} PARENT_SCOPE)
endfunction()

# Makes the libraries of cmake/layers.txt, each with the folders that it may use. Folders with a CMakeLists.txt of their own
# (they need more than this tree) are left to it; it finds what it may use in <Folder>_uses.
function(brinewright_layers)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/cmake/layers.txt)
  file(STRINGS ${CMAKE_SOURCE_DIR}/cmake/layers.txt Lines REGEX "^[^#]")
  foreach(Line IN LISTS Lines)
    string(REGEX MATCH "^([^:]+): *(.*)$" Unused "${Line}")
    set(Folder ${CMAKE_MATCH_1})
    string(REPLACE " " ";" Below "${CMAKE_MATCH_2}")
    set(Libraries)
    foreach(Other IN LISTS Below)
      brinewright_library_name(${Other} Library)
      list(APPEND Libraries ${Library})
    endforeach()
    brinewright_library_name(${Folder} Name)
    if(EXISTS ${CMAKE_SOURCE_DIR}/${Folder}/CMakeLists.txt)
      set(brinewright_uses ${Libraries} CACHE INTERNAL "")
      add_subdirectory(${CMAKE_SOURCE_DIR}/${Folder} ${CMAKE_BINARY_DIR}/${Folder})
    elseif(Folder MATCHES "^ui/")
      if(BRINEWRIGHT_UI)
        brinewright_ui_library(${Name} ${Folder} ${Libraries})
      endif()
    else()
      brinewright_library(${Name} ${Folder} ${Libraries})
    endif()
  endforeach()
endfunction()
