# SPDX-License-Identifier: GPL-3.0-or-later
# Installs BUILD_DIR to a prefix of its own, builds the hosts in EXAMPLES against it as a stranger would, and runs
# them and the program. WORK_DIR is emptied first.
#
#   cmake -DBUILD_DIR=... -DWORK_DIR=... -DGENERATOR=... -DCXX=... -DCXX_FLAGS=... -DHOST=... -DEXAMPLES=...
#         -P package_test.cmake
cmake_minimum_required(VERSION 3.21)

set(prefix ${WORK_DIR}/prefix)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

function(run)
    execute_process(COMMAND ${ARGV} WORKING_DIRECTORY ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(expect_installed)
    foreach(file IN LISTS ARGN)
        if(NOT EXISTS ${prefix}/${file})
            message(FATAL_ERROR "not installed: ${file}")
        endif()
    endforeach()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
expect_installed(
    include/voltbok/gui/voltbokgui.h
    include/voltbok/plugin/rotavexplugin.h
    include/voltbok/records/batterywidget.h
    include/voltbok/records/logdata.h
    include/voltbok/records/modelwidget.h
    include/voltbok/storage/dataprocessor.h
    include/voltbok/voltbok_export.h)

# Moved after installation: nothing in it may know where it was installed to.
file(RENAME ${prefix} ${WORK_DIR}/moved)
set(prefix ${WORK_DIR}/moved)

# A host runs until its user ends it.
function(expect_running)
    execute_process(COMMAND ${ARGV} TIMEOUT 3 RESULT_VARIABLE result)
    if(NOT result MATCHES "timeout")
        message(FATAL_ERROR "${ARGV} ended by itself: ${result}")
    endif()
endfunction()

foreach(example IN ITEMS minimal plugin)
    run(${CMAKE_COMMAND} -S ${EXAMPLES}/${example} -B ${WORK_DIR}/${example} -G ${GENERATOR}
        -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${CXX_FLAGS} -DCMAKE_BUILD_TYPE=Debug
        -DCMAKE_PREFIX_PATH=${prefix})
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/${example})
    expect_running(${WORK_DIR}/${example}/${example} ${WORK_DIR}/logbook)
endforeach()

if(HOST)
    expect_installed(bin/voltbok)
    run(${prefix}/bin/voltbok --version)
    run(${prefix}/bin/voltbok --data ${WORK_DIR}/catalogue --screenshot ${WORK_DIR}/window.png)
endif()
