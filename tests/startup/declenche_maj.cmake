# When an installation leaves "Copie de Medoc.mdb" beside the program: over another template, or over a practice in
# use without any. In: SOURCE, the project; TRAVAIL, a directory of the test's own.
set(MODELE "${TRAVAIL}/livre/Copie de Medoc.mdb")

function(verifie nom attendu)
    set(DOSSIER "${TRAVAIL}/${nom}")
    include("${SOURCE}/cmake/DeclencheMaj.cmake")
    set(obtenu FALSE)
    if(EXISTS "${DOSSIER}/Copie de Medoc.mdb")
        set(obtenu TRUE)
    endif()
    if(NOT obtenu STREQUAL attendu)
        message(FATAL_ERROR "${nom}: ${obtenu}")
    endif()
endfunction()

file(REMOVE_RECURSE "${TRAVAIL}")
file(WRITE "${MODELE}" "nouveau")
file(MAKE_DIRECTORY "${TRAVAIL}/premiere")
file(WRITE "${TRAVAIL}/meme/BasesInstal/Copie de Medoc.mdb" "nouveau")
file(WRITE "${TRAVAIL}/meme/CheminData.cfg" "x")
file(WRITE "${TRAVAIL}/autre/BasesInstal/Copie de Medoc.mdb" "ancien")
file(WRITE "${TRAVAIL}/sans modele/CheminData.cfg" "x")

verifie("premiere" FALSE)
verifie("meme" FALSE)
verifie("autre" TRUE)
verifie("sans modele" TRUE)
