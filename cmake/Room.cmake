# A room is one folder of src/ and one target. Each target sees only its own folder and those that
# it links, through a folder that holds nothing but a link to it: an include that goes against the
# floors does not compile.

set(DROSSBIN_WARNINGS -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
if(DROSSBIN_SANITIZE)
  # Without vptr: that check opens a pipe to look at memory, and takes it for a wrong object where
  # the process may open no more files, as in tests that leave none.
  add_compile_options(-fsanitize=${DROSSBIN_SANITIZE} -fno-sanitize=vptr
                      -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${DROSSBIN_SANITIZE})
endif()

function(furnish_room target folder)
  set(view "${CMAKE_BINARY_DIR}/include/${folder}")
  file(MAKE_DIRECTORY "${view}")
  file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${view}/${folder}" SYMBOLIC)
  target_include_directories(${target} PUBLIC "${view}")
  be_strict(${target})
endfunction()

# Warnings are errors in what we write; code that Qt generates into the same target is Qt's.
function(be_strict target)
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "^[A-Za-z0-9]+\\.cpp$")
  set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS "${DROSSBIN_WARNINGS}")
endfunction()
