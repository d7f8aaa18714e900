# Installs the built library into a folder of its own and builds a small program against it with find_package.
# Takes BUILD, SOURCE, WORK, FLAGS.
function(step)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGN}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
step(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
step(${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/build -G Ninja -DCMAKE_PREFIX_PATH=${WORK}/installed
     "-DCMAKE_CXX_FLAGS=${FLAGS}")
step(${CMAKE_COMMAND} --build ${WORK}/build)
step(${WORK}/build/consumer)
