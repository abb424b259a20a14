# Runs RUNNER on SCRIPTS, which must fail, and compares all that it prints with the file EXPECTED.
execute_process(COMMAND ${RUNNER} ${SCRIPTS} OUTPUT_VARIABLE printed ERROR_VARIABLE errors RESULT_VARIABLE status)
file(READ ${EXPECTED} expected)
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "expected:\n${expected}\nprinted:\n${printed}\n${errors}")
endif()
if(NOT status EQUAL 1)
  message(FATAL_ERROR "expected exit status 1, got ${status}")
endif()
