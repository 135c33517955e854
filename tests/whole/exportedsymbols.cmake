# SPDX-License-Identifier: GPL-3.0-or-later
# Fails unless the library exports its six classes and nothing else of its own.
# Usage: cmake -D NM=nm -D LIBRARY=libvoltbok.so -P exportedsymbols.cmake

execute_process(COMMAND ${NM} --dynamic --defined-only --demangle ${LIBRARY}
    OUTPUT_VARIABLE listing
    COMMAND_ERROR_IS_FATAL ANY)

# T, D, B and R are symbols of the library; the weak ones are copies of inline functions of Qt's and the language's.
string(REGEX MATCHALL "[0-9a-f]+ [TDBR] [^\n]+" symbols "${listing}")
list(TRANSFORM symbols REPLACE "^[0-9a-f]+ [TDBR] " "")
list(FILTER symbols EXCLUDE REGEX "^(_edata|_end|__bss_start|_init|_fini)$") # the linker's
set(strangers ${symbols})
list(FILTER strangers EXCLUDE REGEX
    "^(non-virtual thunk to |vtable for |typeinfo for )?(BatteryWidget|DataProcessor|LogData|ModelWidget|RotavexPlugin|VoltbokGui)(::|$)")
if(strangers)
    message(FATAL_ERROR "The library exports more than its classes: ${strangers}")
endif()

foreach(class IN ITEMS BatteryWidget DataProcessor ModelWidget RotavexPlugin VoltbokGui)
    if(NOT symbols MATCHES "${class}::staticMetaObject")
        message(FATAL_ERROR "The library does not export ${class}")
    endif()
endforeach()
