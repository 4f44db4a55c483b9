# What an installation leaves: the program and all that it looks for beside itself, in one directory.
if(WIN32)
    set(dossier_usuel .)
else()
    set(dossier_usuel lib/scriptelle)
endif()
set(SCRIPTELLE_DOSSIER ${dossier_usuel} CACHE STRING "Program directory of an installation, below the prefix")

# Before the templates are written over.
install(CODE "set(DOSSIER \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${SCRIPTELLE_DOSSIER}\")
set(MODELE \"${CMAKE_BINARY_DIR}/installation/BasesInstal/Copie de Medoc.mdb\")
include(\"${CMAKE_CURRENT_LIST_DIR}/DeclencheMaj.cmake\")")

install(TARGETS Scriptelle Utile scriptelle-banque RUNTIME DESTINATION ${SCRIPTELLE_DOSSIER})
if(TARGET scriptelle-jet)
    install(TARGETS scriptelle-jet RUNTIME DESTINATION ${SCRIPTELLE_DOSSIER})
endif()
if(TARGET scriptelle-bdp)
    install(TARGETS scriptelle-bdp LIBRARY DESTINATION ${SCRIPTELLE_DOSSIER})
endif()
install(DIRECTORY ${CMAKE_BINARY_DIR}/installation/ DESTINATION ${SCRIPTELLE_DOSSIER}
    FILES_MATCHING PATTERN "*.mdb" PATTERN "zeromono.htm")

# A bank that the doctor has brought up to date stays.
install(CODE "set(dossier \"\${CMAKE_INSTALL_PREFIX}/${SCRIPTELLE_DOSSIER}\")
if(NOT EXISTS \"\$ENV{DESTDIR}\${dossier}/banque.sqlite\")
    file(INSTALL \"${CMAKE_BINARY_DIR}/installation/banque.sqlite\" DESTINATION \"\${dossier}\")
endif()")
