# Finds OpenCV's core and imgproc by their own files.
#
# Debian's OpenCVConfig.cmake requires all fifty modules and so libopencv-dev, whose 370 packages
# more than double what a new machine must download for the two that are used here.
#
# Targets: opencv_core, opencv_imgproc (the names that OpenCV's own configuration uses).
# Variables: OpenCV_FOUND, OpenCV_VERSION, OpenCV_LIBS.

find_path(OpenCV_INCLUDE_DIR opencv2/core.hpp PATH_SUFFIXES opencv4)
mark_as_advanced(OpenCV_INCLUDE_DIR)

set(OpenCV_LIBS opencv_core opencv_imgproc)
foreach(module core imgproc)
  find_library(OpenCV_${module}_LIBRARY opencv_${module})
  mark_as_advanced(OpenCV_${module}_LIBRARY)
  if(OpenCV_INCLUDE_DIR AND OpenCV_${module}_LIBRARY)
    set(OpenCV_${module}_FOUND TRUE)
  endif()
endforeach()

set(version_header "${OpenCV_INCLUDE_DIR}/opencv2/core/version.hpp")
if(EXISTS "${version_header}")
  file(STRINGS "${version_header}" lines REGEX "#define CV_VERSION_(MAJOR|MINOR|REVISION)")
  string(REGEX MATCHALL "[0-9]+" numbers "${lines}")
  list(JOIN numbers "." OpenCV_VERSION)
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCV
  REQUIRED_VARS OpenCV_core_LIBRARY OpenCV_imgproc_LIBRARY OpenCV_INCLUDE_DIR
  VERSION_VAR OpenCV_VERSION
  HANDLE_COMPONENTS)

if(OpenCV_FOUND AND NOT TARGET opencv_core)
  foreach(module core imgproc)
    add_library(opencv_${module} SHARED IMPORTED)
    set_target_properties(opencv_${module} PROPERTIES
      IMPORTED_LOCATION "${OpenCV_${module}_LIBRARY}"
      INTERFACE_INCLUDE_DIRECTORIES "${OpenCV_INCLUDE_DIR}")
  endforeach()
  target_link_libraries(opencv_imgproc INTERFACE opencv_core)
endif()
