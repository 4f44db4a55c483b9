# Imports the extract into a bank file. Some of its lines are there to be refused: 3 is success too.
execute_process(
    COMMAND ${IMPORT} importer ${DE} --interactions ${THESAURUS} --vers ${VERS}
            --nature "extrait d'essai aux médicaments et interactions inventés, qui ne vaut pas pour soigner"
    RESULT_VARIABLE fin OUTPUT_VARIABLE bilan ERROR_VARIABLE erreur)
if(NOT fin EQUAL 0 AND NOT fin EQUAL 3)
    message(FATAL_ERROR "The extract of the bank was not imported (${fin}): ${erreur}")
endif()
