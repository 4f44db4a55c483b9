# Copies the databases of an installation beside the program, once; the bank again when it is still the one that
# was copied.
if(NOT EXISTS "${VERS}/BasesInstal/Ordo.mdb")
    file(COPY "${DE}/" DESTINATION "${VERS}" PATTERN "banque.sqlite*" EXCLUDE
        PATTERN "*scriptelle-bdp*" EXCLUDE)
endif()

set(banque "${VERS}/banque.sqlite")
set(posee "${DE}.banque")
set(empreinte "")
if(EXISTS "${banque}")
    file(SHA256 "${banque}" empreinte)
endif()
set(empreinte_posee "")
if(EXISTS "${posee}")
    file(READ "${posee}" empreinte_posee)
endif()
if(empreinte STREQUAL "" OR empreinte STREQUAL empreinte_posee)
    file(COPY_FILE "${DE}/banque.sqlite" "${banque}" ONLY_IF_DIFFERENT)
    file(SHA256 "${banque}" empreinte)
    file(WRITE "${posee}" "${empreinte}")
endif()
