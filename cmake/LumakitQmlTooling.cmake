# lumakit_add_qml_tooling(TARGET URI uri COMPONENTS name... SINGLETONS name... FILES file...
#                         IMPORTS dir... METATYPES file...)
#
# Makes the folder from which tools (the QML compiler, qmllint, qmlls, editors) know the target's module, in the build
# tree: <folder>/<uri> with a qmldir, type information drawn from the target's headers (QML_ELEMENT and its like), and
# the component files themselves, all FILES flat. COMPONENTS and SINGLETONS are those of them that are types of the
# module. IMPORTS are further modules that the folder offers, METATYPES
# describe base classes without a meta-object of their own. At run time nothing of it is read. Sets
# LUMAKIT_QML_TOOLING to the folder and LUMAKIT_QML_TYPES to the type information in the caller's scope.
function(lumakit_add_qml_tooling target)
    cmake_parse_arguments(arg "" "URI" "COMPONENTS;SINGLETONS;FILES;IMPORTS;METATYPES" ${ARGN})
    set(tooling ${PROJECT_BINARY_DIR}/tooling)
    set(folder ${tooling}/${arg_URI})

    set(qmldir "module ${arg_URI}\ntypeinfo ${arg_URI}.qmltypes\ndepends QtQuick\n")
    set(copies "")
    foreach(file IN LISTS arg_FILES)
        get_filename_component(base ${file} NAME)
        get_filename_component(name ${file} NAME_WE)
        if(name IN_LIST arg_COMPONENTS)
            string(APPEND qmldir "${name} 1.0 ${base}\n")
        elseif(name IN_LIST arg_SINGLETONS)
            string(APPEND qmldir "singleton ${name} 1.0 ${base}\n")
        endif()
        add_custom_command(OUTPUT ${folder}/${base} DEPENDS ${file} VERBATIM
            COMMAND ${CMAKE_COMMAND} -E copy_if_different ${file} ${folder}/${base})
        list(APPEND copies ${folder}/${base})
    endforeach()
    file(CONFIGURE OUTPUT ${folder}/qmldir CONTENT "${qmldir}")
    file(COPY ${arg_IMPORTS} DESTINATION ${tooling})
    file(GLOB_RECURSE imported CONFIGURE_DEPENDS LIST_DIRECTORIES false ${arg_IMPORTS})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${imported})

    # A change in the headers that leaves the types alone makes nothing anew.
    qt_extract_metatypes(${target} OUTPUT_FILES metatypes)
    set(types ${folder}/${arg_URI}.qmltypes)
    set(draft ${CMAKE_CURRENT_BINARY_DIR}/${arg_URI}.qmltypes)
    set(foreign ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_ARCHDATA}/metatypes)
    set(foreign_types ${arg_METATYPES})
    foreach(module core gui qml quick)
        file(GLOB found ${foreign}/qt6${module}_*metatypes.json)
        list(APPEND foreign_types ${found})
    endforeach()
    list(JOIN foreign_types "," foreign_types)
    add_custom_command(OUTPUT ${types}
        COMMAND Qt6::qmltyperegistrar --import-name ${arg_URI} --major-version 1 --minor-version 0
                --foreign-types=${foreign_types} --generate-qmltypes=${draft}
                -o ${CMAKE_CURRENT_BINARY_DIR}/${arg_URI}_unused.cpp ${metatypes}
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${draft} ${types}
        DEPENDS ${metatypes} ${arg_METATYPES} Qt6::qmltyperegistrar
        COMMENT "Describing the types of ${arg_URI}"
        VERBATIM)

    # Before the target, not for it: a changed component does not compile all others again.
    add_custom_target(${target}_tooling DEPENDS ${copies})
    add_dependencies(${target} ${target}_tooling)
    set(LUMAKIT_QML_TOOLING ${tooling} PARENT_SCOPE)
    set(LUMAKIT_QML_TYPES ${types} PARENT_SCOPE)
endfunction()
