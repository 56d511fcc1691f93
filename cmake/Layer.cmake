# A layer is one folder of src/ and one target, and so is each part of a layer that has parts. A target
# sees only its own folder and those that it links, through a folder that holds nothing but a link to
# it: an include that runs upward does not compile.

set(DROSSBIN_WARNINGS -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
if(DROSSBIN_SANITIZE)
  # Without vptr: that check opens a pipe to look at memory, and takes it for a wrong object where
  # the process may open no more files, as in tests that leave none.
  add_compile_options(-fsanitize=${DROSSBIN_SANITIZE} -fno-sanitize=vptr
                      -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${DROSSBIN_SANITIZE})
endif()

# The one place that tells the code whether it may do what only Linux can. Other systems than Linux are
# rarely at hand: DROSSBIN_PORTABLE has what they run built and tested on Linux too.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT DROSSBIN_PORTABLE)
  add_compile_definitions(DROSSBIN_LINUX)
endif()

# expose_layer(TARGET FOLDER): what links the target may include the files of the folder of src/.
function(expose_layer target folder)
  set(view "${CMAKE_BINARY_DIR}/include/${target}")
  get_filename_component(parent "${view}/${folder}" DIRECTORY)
  file(MAKE_DIRECTORY "${parent}")
  file(CREATE_LINK "${PROJECT_SOURCE_DIR}/src/${folder}" "${view}/${folder}" SYMBOLIC)
  target_include_directories(${target} PUBLIC "${view}")
  be_strict(${target})
endfunction()

# Warnings are errors in what we write; code that Qt generates into the same target is Qt's.
function(be_strict target)
  own_sources(sources ${target})
  set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS "${DROSSBIN_WARNINGS}")
endfunction()

# own_sources(RESULT TARGET): what is written by hand. Generated files have longer paths.
function(own_sources result target)
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "^([A-Za-z0-9]+/)?[A-Za-z0-9]+\\.cpp$")
  set(${result} ${sources} PARENT_SCOPE)
endfunction()
