# lumakit_add_qml(TARGET NAME name [IMPORTS dir...] FILES file...)
#
# Puts QML files and scripts flat at qrc:/Qml/<file name> into the target and compiles them ahead of
# time, so that no source is parsed at run time. NAME tells the resource sets of one program apart.
# IMPORTS names folders with type information (qmldir and .qmltypes) for the compiler, beside that of the
# library (LUMAKIT_QML_TOOLING): with the type of App known, look-ups need no names at run time.
function(lumakit_add_qml target)
    cmake_parse_arguments(arg "" "NAME" "IMPORTS;FILES" ${ARGN})
    find_package(Qt6 6.8 REQUIRED COMPONENTS Qml)

    set(folder ${CMAKE_CURRENT_BINARY_DIR}/.qml/${arg_NAME})
    set(qrc ${folder}/${arg_NAME}.qrc)
    set(resource_paths "")
    set(qrc_lines "")
    set(sources "")
    foreach(file IN LISTS arg_FILES)
        get_filename_component(source ${file} ABSOLUTE)
        get_filename_component(base ${file} NAME)
        list(APPEND sources ${source})
        list(APPEND resource_paths /Qml/${base})
        string(APPEND qrc_lines "    <file alias=\"${base}\">${source}</file>\n")
        set_source_files_properties(${source} PROPERTIES QT_RESOURCE_ALIAS ${base})
    endforeach()

    # The compiler looks up neighbouring files in this list.
    file(CONFIGURE OUTPUT ${qrc} CONTENT "<RCC>\n  <qresource prefix=\"/Qml\">\n${qrc_lines}  </qresource>\n</RCC>\n")
    # A newline-separated list of resource paths, as the loader's generator takes it.
    list(JOIN resource_paths "\n" rsp_text)
    file(CONFIGURE OUTPUT ${folder}/paths.rsp CONTENT "${rsp_text}\n")

    qt_add_resources(${target} ${arg_NAME} PREFIX /Qml FILES ${sources})

    set(import_arguments "")
    set(import_files "")
    foreach(import IN LISTS arg_IMPORTS ITEMS ${LUMAKIT_QML_TOOLING})
        list(APPEND import_arguments -I ${import})
        file(GLOB_RECURSE found CONFIGURE_DEPENDS ${import}/*.qmltypes ${import}/qmldir)
        list(APPEND import_files ${found})
    endforeach()

    foreach(source IN LISTS sources)
        get_filename_component(base ${source} NAME)
        string(MAKE_C_IDENTIFIER ${base} identifier)
        set(unit ${folder}/${identifier}.cpp)
        add_custom_command(
            OUTPUT ${unit}
            COMMAND Qt6::qmlcachegen --resource-path /Qml/${base} --resource ${qrc}
                    -I ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_QML} ${import_arguments}
                    -o ${unit} ${source}
            DEPENDS ${source} ${qrc} ${import_files} ${LUMAKIT_QML_TYPES} Qt6::qmlcachegen
            COMMENT "Compiling ${base}"
            VERBATIM)
        list(APPEND units ${unit})
    endforeach()

    set(loader ${folder}/qmlcache_loader.cpp) # the generator insists on this name
    add_custom_command(
        OUTPUT ${loader}
        COMMAND Qt6::qmlcachegen --resource-name qmlcache_${arg_NAME} -o ${loader} @${folder}/paths.rsp
        DEPENDS ${folder}/paths.rsp Qt6::qmlcachegen
        COMMENT "Generating the QML loader of ${arg_NAME}"
        VERBATIM)

    set_source_files_properties(${units} ${loader} PROPERTIES SKIP_AUTOGEN ON SKIP_UNITY_BUILD_INCLUSION ON SKIP_PRECOMPILE_HEADERS ON)
    if(NOT MSVC) # generated code is not ours to warn about
        set_source_files_properties(${units} ${loader} PROPERTIES COMPILE_OPTIONS -w)
    endif()
    target_sources(${target} PRIVATE ${units} ${loader})
    target_link_libraries(${target} PRIVATE Qt6::QmlPrivate)
endfunction()
