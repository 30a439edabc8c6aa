# The Windows check compiles and never links: every step that would archive or link only marks
# its outputs, so that the build tool sees them made.
set(EC_MARK_MADE "\"${CMAKE_COMMAND}\" -E touch <TARGET>")
set(CMAKE_CXX_CREATE_SHARED_LIBRARY "${EC_MARK_MADE} <TARGET_IMPLIB>")
set(CMAKE_CXX_CREATE_SHARED_MODULE "${EC_MARK_MADE}")
set(CMAKE_CXX_LINK_EXECUTABLE "${EC_MARK_MADE}")
set(CMAKE_CXX_CREATE_STATIC_LIBRARY "${EC_MARK_MADE}")
set(CMAKE_CXX_ARCHIVE_CREATE "${EC_MARK_MADE}")
set(CMAKE_CXX_ARCHIVE_APPEND "${EC_MARK_MADE}")
set(CMAKE_CXX_ARCHIVE_FINISH "")
