# How the targets of the project are made from its folders. Files are globbed: a new file in a
# folder that is already listed needs no change here.

# campora_glob(<variable> <suffix> <folder>...): the files "*<suffix>" of the folders.
function(campora_glob variable suffix)
  set(patterns "")
  foreach(folder IN LISTS ARGN)
    list(APPEND patterns "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*${suffix}")
  endforeach()
  file(GLOB files CONFIGURE_DEPENDS ${patterns})
  set(${variable} "${files}" PARENT_SCOPE)
endfunction()

# campora_library(<name> FOLDERS <folder>...): a static library of all sources
# and headers of the folders, included from src/. A folder's main.cpp never belongs to it.
function(campora_library name)
  cmake_parse_arguments(arg "" "" "FOLDERS" ${ARGN})
  campora_glob(sources .cpp ${arg_FOLDERS})
  campora_glob(headers .h ${arg_FOLDERS})
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${name} STATIC ${sources})
  target_sources(${name} PUBLIC FILE_SET HEADERS
    BASE_DIRS "${PROJECT_SOURCE_DIR}/src" FILES ${headers})
  target_include_directories(${name} PUBLIC
    "${PROJECT_SOURCE_DIR}/src" "${PROJECT_BINARY_DIR}/generated")
  target_link_libraries(${name} PRIVATE campora_flags)
endfunction()
