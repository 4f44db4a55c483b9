# What an installation leaves beside the program, the first time and over another version.
# In: BINAIRE, the build tree; PREFIXE, a directory of the test's own; DOSSIER, the program directory below it;
# FICHIERS, the programs and libraries that it must hold.
function(installe)
    execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BINAIRE}" --prefix "${PREFIXE}"
        OUTPUT_QUIET RESULT_VARIABLE resultat)
    if(resultat)
        message(FATAL_ERROR "the installation failed")
    endif()
endfunction()

file(REMOVE_RECURSE "${PREFIXE}")
installe()
set(programme "${PREFIXE}/${DOSSIER}")
foreach(fichier ${FICHIERS} Medoc.mdb Ordo.mdb banque.sqlite zeromono.htm BasesInstal/Ordo.mdb
        "BasesInstal/Copie de Medoc.mdb" "BasesInstal/Copie de Ordo.mdb")
    if(NOT EXISTS "${programme}/${fichier}")
        message(FATAL_ERROR "missing: ${fichier}")
    endif()
endforeach()
installe()
if(EXISTS "${programme}/Copie de Medoc.mdb")
    message(FATAL_ERROR "the same version again makes an upgrade due")
endif()
file(APPEND "${programme}/BasesInstal/Copie de Medoc.mdb" "of another version")
installe()
if(NOT EXISTS "${programme}/Copie de Medoc.mdb")
    message(FATAL_ERROR "another version does not make the upgrade due")
endif()
file(REMOVE_RECURSE "${PREFIXE}")
