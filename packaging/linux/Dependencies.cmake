# Run by cpack: the packages of what the program loads by name, which no linker knows of. They are asked
# of dpkg, so that a Qt that is cut into other packages needs no other list.

# qt_folder(RESULT NAME): where this Qt has its QML modules, its plugins or its tools.
function(qt_folder result name)
  execute_process(COMMAND "${CPACK_DROSSBIN_QMAKE}" -query ${name} OUTPUT_VARIABLE folder
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${result} "${folder}" PARENT_SCOPE)
endfunction()

# owner(RESULT FILE): the package that brings a file.
function(owner result file)
  execute_process(COMMAND dpkg-query --search "${file}" OUTPUT_VARIABLE line
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE ":.*" "" package "${line}")
  set(${result} "${package}" PARENT_SCOPE)
endfunction()

# qml_packages(RESULT): the packages of all modules that the program's QML imports, and that those import.
function(qml_packages result)
  qt_folder(tools QT_INSTALL_LIBEXECS)
  qt_folder(modules QT_INSTALL_QML)
  execute_process(COMMAND "${tools}/qmlimportscanner" -qmlFiles ${CPACK_DROSSBIN_QML} -importPath "${modules}"
                  OUTPUT_VARIABLE imports COMMAND_ERROR_IS_FATAL ANY)
  string(JSON count LENGTH "${imports}")
  math(EXPR last "${count} - 1")
  foreach(index RANGE ${last})
    string(JSON folder ERROR_VARIABLE is_our_own GET "${imports}" ${index} path)
    if(NOT is_our_own)
      owner(package "${folder}/qmldir")
      list(APPEND packages "${package}")
    endif()
  endforeach()
  list(REMOVE_DUPLICATES packages)
  list(SORT packages)
  set(${result} ${packages} PARENT_SCOPE)
endfunction()

if(CPACK_GENERATOR STREQUAL "DEB")
  qt_folder(plugins QT_INSTALL_PLUGINS)
  owner(x11 "${plugins}/platforms/libqxcb.so")
  owner(wayland "${plugins}/platforms/libqwayland-generic.so")
  qml_packages(modules)
  list(JOIN modules ", " modules)
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "${modules}, ${x11}")
  # A Wayland desktop without it shows the window through Xwayland. The typefaces are those that the
  # screens were made with; Unicode's check mark and cross, in a report, are in the second.
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "${wayland}, fonts-inter, fonts-noto-color-emoji")
endif()
