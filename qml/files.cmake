# Every component and script, one folder a family; all land flat at qrc:/Qml.
set(LUMAKIT_QML_FILES
    scripts/ThemeUtils.js
    shapes/WItem.qml
    shapes/WRectangle.qml
)
list(TRANSFORM LUMAKIT_QML_FILES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)

# Type information of the host's module, for the QML compiler and other tools.
set(LUMAKIT_QML_TOOLING ${CMAKE_CURRENT_LIST_DIR}/tooling)
