function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\nanswered ${result}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect_picture host)
    set(picture ${WORK}/picture.png)
    file(REMOVE ${picture})
    run(${CMAKE_COMMAND} -E env SPLITFRAME_DISPLAY=headless ${host} ${picture})
    file(SIZE ${picture} size)
    if(size LESS 500)
        message(FATAL_ERROR "${host} wrote a picture of ${size} bytes")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
set(prefix ${WORK}/prefix)
set(flags)
if(SANITIZE)
    set(flags -fsanitize=address,undefined)
endif()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})

run(${CMAKE_COMMAND} -S ${HOST} -B ${WORK}/package -DCMAKE_PREFIX_PATH=${prefix}
    -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${flags})
run(${CMAKE_COMMAND} --build ${WORK}/package)
expect_picture(${WORK}/package/first-host)

set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
run(pkg-config --cflags --libs splitframe)
separate_arguments(wanted UNIX_COMMAND "${output}")
run(${CXX} -std=c++20 ${flags} ${HOST}/main.cpp -o ${WORK}/first-host ${wanted}
    -Wl,-rpath,${prefix}/${LIBDIR})
expect_picture(${WORK}/first-host)
