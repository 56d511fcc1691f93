# What cpack makes of an installation: a Debian package on Linux, a disk image on macOS.
set(CPACK_PACKAGE_NAME drossbin)
set(CPACK_PACKAGE_VENDOR "The Drossbin developers")
set(CPACK_PACKAGE_CONTACT "The Drossbin developers <developers@drossbin.org>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://drossbin.org/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "find and delete what programs leave behind")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

if(APPLE)
  set(CPACK_GENERATOR DragNDrop)
  set(CPACK_PACKAGE_FILE_NAME "Drossbin-${PROJECT_VERSION}")
  set(CPACK_DMG_VOLUME_NAME "Drossbin ${PROJECT_VERSION}")
  set(CPACK_DMG_FORMAT UDZO)
else()
  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  # Whatever the umask of who builds: folders that everybody may read.
  set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_SECTION utils)
  set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Drossbin looks through your home folder for caches, packages that developer
tools keep, application data, logs and old downloads. It shows how large each
is and how safe it is to delete, and deletes what you select and confirm.
.
What is deleted is gone for good: there is no trash. Links are removed as
links, a deletion stays on one disk, and each leaves a log.")
  # Shared libraries are found by dpkg-shlibdeps, QML modules by what the script finds imported.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_SOURCE_DIR}/linux/Dependencies.cmake")
  get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
  set(CPACK_DROSSBIN_QMAKE "${qmake}")
  # Those that this system gets.
  get_target_property(qml_files drossbin_views QT_QML_MODULE_QML_FILES)
  set(CPACK_DROSSBIN_QML "${qml_files}")
endif()
include(CPack)
