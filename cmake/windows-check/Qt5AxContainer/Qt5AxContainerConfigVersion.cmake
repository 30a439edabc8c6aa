# Answers for the Qt 5 version that the Windows check compiles against.
set(PACKAGE_VERSION "${Qt5Core_VERSION}")
set(PACKAGE_VERSION_COMPATIBLE TRUE)
if(PACKAGE_FIND_VERSION VERSION_EQUAL PACKAGE_VERSION)
    set(PACKAGE_VERSION_EXACT TRUE)
endif()
