# Pictures, font and French texts of Qt that the windows carry: made from Debian's packages at build
# time, never checked in. Sets RESSOURCES_STYLE, the generated source of the Qt resource.
set(DOSSIER_ICONES /usr/share/bootstrap-icons/svg CACHE PATH "SVG files of the package bootstrap-icons")
set(DOSSIER_INTER /usr/share/fonts/opentype/inter CACHE PATH "Font files of the package fonts-inter")
set(FICHIER_QTBASE_FR /usr/share/qt6/translations/qtbase_fr.qm CACHE FILEPATH
    "French texts of Qt, package qt6-translations-l10n")
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

set(ressources ${CMAKE_CURRENT_BINARY_DIR}/ressources)
file(MAKE_DIRECTORY ${ressources}/icones ${ressources}/indicateurs)
set(images)
set(lignes_qrc)

# One picture a size; `suffixes` and `tailles` go side by side.
function(rend_image svg sortie couleur tailles suffixes)
    set(css ${ressources}/${couleur}.css)
    if(NOT EXISTS ${css})
        file(WRITE ${css} "svg { color: #${couleur}; }\n")
    endif()
    set(fichiers)
    set(commandes)
    foreach(taille suffixe IN ZIP_LISTS tailles suffixes)
        set(fichier ${ressources}/${sortie}${suffixe}.png)
        list(APPEND fichiers ${fichier})
        list(APPEND commandes COMMAND ${RSVG_CONVERT} -w ${taille} -h ${taille} -s ${css} -o ${fichier} ${svg})
        set(lignes_qrc "${lignes_qrc}  <file alias=\"${sortie}${suffixe}.png\">${fichier}</file>\n")
    endforeach()
    add_custom_command(OUTPUT ${fichiers} ${commandes} DEPENDS ${svg} VERBATIM)
    set(images ${images} ${fichiers} PARENT_SCOPE)
    set(lignes_qrc "${lignes_qrc}" PARENT_SCOPE)
endfunction()

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/icones.txt)
file(STRINGS ${PROJECT_SOURCE_DIR}/cmake/icones.txt icones REGEX "^[a-z0-9-]+$")
foreach(icone IN LISTS icones)
    rend_image(${DOSSIER_ICONES}/${icone}.svg icones/${icone}- 000000 "18;27;36;54;72" "18;27;36;54;72")
endforeach()
foreach(indicateur IN ITEMS check-lg:ffffff check-lg:8292a6 chevron-down:034ba2 chevron-up:034ba2
        chevron-right:034ba2 chevron-left:034ba2 chevron-down:8292a6 chevron-up:8292a6)
    string(REPLACE ":" ";" parts ${indicateur})
    list(GET parts 0 nom)
    list(GET parts 1 couleur)
    rend_image(${DOSSIER_ICONES}/${nom}.svg indicateurs/${nom}-${couleur} ${couleur} "12;24" ";@2x")
endforeach()
rend_image(${PROJECT_SOURCE_DIR}/src/application/windows/scriptelle.svg scriptelle- 000000
    "16;32;48;64;128" "16;32;48;64;128")

foreach(graisse IN ITEMS Regular Bold)
    if(EXISTS ${DOSSIER_INTER}/Inter-${graisse}.otf)
        string(APPEND lignes_qrc "  <file alias=\"Inter-${graisse}.otf\">${DOSSIER_INTER}/Inter-${graisse}.otf</file>\n")
    else()
        message(WARNING "Inter-${graisse}.otf is missing (package fonts-inter): the system's font serves instead")
    endif()
endforeach()
if(EXISTS ${FICHIER_QTBASE_FR})
    string(APPEND lignes_qrc "  <file alias=\"qtbase_fr.qm\">${FICHIER_QTBASE_FR}</file>\n")
else()
    message(WARNING "qtbase_fr.qm is missing (package qt6-translations-l10n): Qt's own texts stay English")
endif()

file(CONFIGURE OUTPUT ${ressources}/style.qrc @ONLY
    CONTENT "<RCC><qresource prefix=\"/\">\n@lignes_qrc@</qresource></RCC>\n")
set(RESSOURCES_STYLE ${ressources}/qrc_style.cpp)
add_custom_command(OUTPUT ${RESSOURCES_STYLE}
    COMMAND Qt6::rcc --no-compress --name style --output ${RESSOURCES_STYLE} ${ressources}/style.qrc
    DEPENDS ${ressources}/style.qrc ${images} VERBATIM)
set_source_files_properties(${RESSOURCES_STYLE} PROPERTIES SKIP_AUTOMOC ON SKIP_AUTOUIC ON)
