# A new version over a practice in use, whose templates are others, makes the upgrade of the databases due: the next
# start finds "Copie de Medoc.mdb" beside the program. A first installation has nothing to upgrade.
# In: DOSSIER, the program directory; MODELE, the template of this version.
set(present "${DOSSIER}/BasesInstal/Copie de Medoc.mdb")
set(change FALSE)
if(EXISTS "${present}")
    file(SHA256 "${present}" avant)
    file(SHA256 "${MODELE}" apres)
    if(NOT avant STREQUAL apres)
        set(change TRUE)
    endif()
elseif(EXISTS "${DOSSIER}/CheminData.cfg")
    set(change TRUE)
endif()
if(change)
    file(COPY "${MODELE}" DESTINATION "${DOSSIER}")
endif()
