# Plays a scenario that has to fail: exit status 1, one failure in the sums, and the line that the file's
# first line announces.
file(STRINGS ${FILE} lines LIMIT_COUNT 1 ENCODING UTF-8)
string(REGEX REPLACE "^// attendu : " "" expected "${lines}")
execute_process(COMMAND ${RUNNER} ${FILE} --limite 6 --attente 1 OUTPUT_VARIABLE output RESULT_VARIABLE status)
message("${output}")
string(FIND "${output}" "${expected}" place)
if(place LESS 0)
    message(FATAL_ERROR "missing: ${expected}")
endif()
if(NOT status EQUAL 1 OR NOT output MATCHES " passed, 1 failed\n$")
    message(FATAL_ERROR "exit status ${status}, or not one failure")
endif()
