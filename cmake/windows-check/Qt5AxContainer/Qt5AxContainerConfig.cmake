# ActiveQt's container classes as the Windows check sees them: the declaration-only header in
# ../include, nothing to link. Used only by the Windows check.
if(NOT TARGET Qt5::AxContainer)
    add_library(Qt5::AxContainer INTERFACE IMPORTED)
    set_target_properties(Qt5::AxContainer PROPERTIES
        INTERFACE_INCLUDE_DIRECTORIES "${CMAKE_CURRENT_LIST_DIR}/../include"
        INTERFACE_LINK_LIBRARIES Qt5::Widgets)
endif()
set(Qt5AxContainer_FOUND TRUE)
