# The library of the open bank exports every name of the interface under its plain form, and no other.
# In: OBJDUMP, BIBLIOTHEQUE, ATTENDUS, the linker's list of the names.
execute_process(COMMAND ${OBJDUMP} -p ${BIBLIOTHEQUE} OUTPUT_VARIABLE lignes COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "^.*Ordinal/Name Pointer\\] Table" "" lignes "${lignes}")
string(REGEX MATCHALL "\n\t\\[ *[0-9]+\\] [^\n ]+" exportes "${lignes}")
list(TRANSFORM exportes REPLACE "^.*\\] " "")
file(READ ${ATTENDUS} attendus)
string(REGEX MATCHALL "[A-Za-z]+_[A-Za-z0-9_]+|StringLength|CopyString[N2]*" attendus "${attendus}")
list(SORT exportes)
list(SORT attendus)
list(LENGTH exportes nombre)
if(NOT nombre EQUAL 73 OR NOT exportes STREQUAL attendus)
    message(FATAL_ERROR "${nombre} names are exported: ${exportes}\nexpected: ${attendus}")
endif()
