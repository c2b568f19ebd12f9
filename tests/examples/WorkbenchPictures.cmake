# Runs the workbench twice: every frame and style has its picture, named on standard output, and both runs give the
# same bytes. Then the ways in which it must refuse.
set(pictures
    overview-process overview-figures-and-trend overview-wall-display
    trends-one-trend trends-four-trends
    instruments-table-and-details instruments-table-and-journal
    alarms-alarm-desk setup-settings-and-time)

file(REMOVE_RECURSE ${WORK})
foreach(run first second)
    execute_process(COMMAND ${WORKBENCH} --png ${WORK}/${run} RESULT_VARIABLE result OUTPUT_VARIABLE output
                    ERROR_VARIABLE errors)
    if(NOT result EQUAL 0 OR NOT errors STREQUAL "")
        message(FATAL_ERROR "answered ${result}: ${errors}")
    endif()
    foreach(picture ${pictures})
        set(file ${WORK}/${run}/${picture}.png)
        if(NOT output MATCHES "${picture}.png  ")
            message(FATAL_ERROR "${picture} is not named in: ${output}")
        endif()
        file(SIZE ${file} size)
        if(size LESS 10000)
            message(FATAL_ERROR "${file} has ${size} bytes: it is all but blank")
        endif()
        file(SHA256 ${file} ${run}_${picture})
    endforeach()
endforeach()
file(GLOB found ${WORK}/first/*.png)
list(LENGTH found found_count)
list(LENGTH pictures wanted_count)
if(NOT found_count EQUAL wanted_count)
    message(FATAL_ERROR "${found_count} pictures, not ${wanted_count}: ${found}")
endif()
foreach(picture ${pictures})
    if(NOT first_${picture} STREQUAL second_${picture})
        message(FATAL_ERROR "${picture} differs between two runs")
    endif()
endforeach()

function(expect_failure wanted_result wanted_text)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT result EQUAL wanted_result OR NOT errors MATCHES "${wanted_text}")
        message(FATAL_ERROR "${ARGN}: answered ${result} with: ${errors}")
    endif()
endfunction()

expect_failure(2 "no screen" ${WORKBENCH})
expect_failure(2 "usage" ${WORKBENCH} --size 10 --png ${WORK}/never)
expect_failure(2 "usage" ${WORKBENCH} --frame)
expect_failure(1 "missing.xml" ${WORKBENCH} --layout ${WORK}/missing.xml --png ${WORK}/never)
file(WRITE ${WORK}/blocked "a file where a directory is asked for")
expect_failure(1 "blocked" ${WORKBENCH} --png ${WORK}/blocked/below)
