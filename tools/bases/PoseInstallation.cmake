# Copies the databases of an installation beside the program, once.
if(NOT EXISTS "${VERS}/BasesInstal/Ordo.mdb")
    file(COPY "${DE}/" DESTINATION "${VERS}")
endif()
