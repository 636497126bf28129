# A shipped scenario through hullsim: saved once, that save loaded and saved
# again; the two files must be the same text.
# Variables: HULLSIM, ROOT, WORK, SCENARIO.
set(first ${WORK}/${SCENARIO}.first.scn)
set(second ${WORK}/${SCENARIO}.second.scn)
execute_process(COMMAND ${HULLSIM} run --root ${ROOT} ${SCENARIO} --save ${first} RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "hullsim could not save ${SCENARIO}")
endif()
execute_process(COMMAND ${HULLSIM} run --root ${ROOT} ${first} --save ${second} RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "hullsim could not load its own save of ${SCENARIO}")
endif()
file(READ ${first} firstText)
file(READ ${second} secondText)
if(NOT firstText STREQUAL secondText)
  message(FATAL_ERROR "the save of the save of ${SCENARIO} differs:\n${firstText}\n---\n${secondText}")
endif()
