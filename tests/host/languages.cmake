# SPDX-License-Identifier: GPL-3.0-or-later
# The tests of the languages, over those that are finished.
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)
get_property(languages GLOBAL PROPERTY voltbok_languages)
get_property(lupdate_options GLOBAL PROPERTY voltbok_lupdate_options)
list(JOIN languages " " languages)
list(JOIN lupdate_options " " lupdate_options)

voltbok_add_test(tst_translations)
target_link_libraries(tst_translations PRIVATE Qt6::Xml)
target_compile_definitions(tst_translations PRIVATE
    LANGUAGES="${languages}"
    LUPDATE="$<TARGET_FILE:Qt6::lupdate>"
    LUPDATE_OPTIONS="${lupdate_options}"
    SOURCES="${PROJECT_SOURCE_DIR}"
    TRANSLATIONS="${PROJECT_SOURCE_DIR}/translations")

if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    voltbok_add_host_test(tst_languages)
    target_link_libraries(tst_languages PRIVATE Qt6::Xml)
    target_compile_definitions(tst_languages PRIVATE
        LANGUAGES="${languages}"
        LRELEASE="$<TARGET_FILE:Qt6::lrelease>"
        RCC="$<TARGET_FILE:Qt6::rcc>"
        TRANSLATION="${PROJECT_SOURCE_DIR}/translations/voltbok_de.ts")
endif()
