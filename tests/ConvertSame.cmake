# Converts MODEL to the native form with TOOL and fails unless OUT equals MODEL byte for byte.
execute_process(COMMAND ${TOOL} model convert ${MODEL} ${OUT} --to xml RESULT_VARIABLE Result)
if(NOT Result EQUAL 0)
  message(FATAL_ERROR "convert failed: ${Result}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${MODEL} ${OUT} RESULT_VARIABLE Same)
if(NOT Same EQUAL 0)
  message(FATAL_ERROR "${OUT} differs from ${MODEL}")
endif()
