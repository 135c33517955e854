# SPDX-License-Identifier: GPL-3.0-or-later
# Warnings, sanitizers and the Qt definitions that every target of this project is built with.
# They stay inside the project: an installed library passes none of them on.

add_library(voltbok_compiler_settings INTERFACE)
target_compile_definitions(voltbok_compiler_settings INTERFACE
    QT_NO_CAST_TO_ASCII
    QT_RESTRICTED_CAST_FROM_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    # What was deprecated up to the oldest Qt that is supported is gone, and a newer one keeps quiet about what it
    # deprecates later. The newer Qt calls these two QT_DISABLE_DEPRECATED_UP_TO and QT_WARN_DEPRECATED_UP_TO, and takes
    # the old names, too.
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    QT_DEPRECATED_WARNINGS_SINCE=0x060400)

target_compile_options(voltbok_compiler_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<BOOL:${VOLTBOK_WARNINGS_AS_ERRORS}>:-Werror>)

if(VOLTBOK_SANITIZE)
    target_compile_options(voltbok_compiler_settings INTERFACE
        -fsanitize=${VOLTBOK_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_link_options(voltbok_compiler_settings INTERFACE -fsanitize=${VOLTBOK_SANITIZE})
endif()
