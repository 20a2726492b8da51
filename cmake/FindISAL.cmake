# Finds ISA-L with its header of igzip and gives the target ISAL::ISAL.
find_path(ISAL_INCLUDE_DIR isa-l/igzip_lib.h)
find_library(ISAL_LIBRARY isal)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(ISAL REQUIRED_VARS ISAL_LIBRARY ISAL_INCLUDE_DIR)
mark_as_advanced(ISAL_INCLUDE_DIR ISAL_LIBRARY)
if(ISAL_FOUND AND NOT TARGET ISAL::ISAL)
  add_library(ISAL::ISAL UNKNOWN IMPORTED)
  set_target_properties(ISAL::ISAL PROPERTIES IMPORTED_LOCATION "${ISAL_LIBRARY}"
                                              INTERFACE_INCLUDE_DIRECTORIES "${ISAL_INCLUDE_DIR}")
endif()
