// SPDX-License-Identifier: GPL-3.0-or-later
// The libFuzzer target: any bytes as the data file. docs/fuzzing.md says how to run it.
#include "roundtrip.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(*argc, *argv); // the records are widgets; lives as long as the process
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // In memory where the machine has such a place: every run writes three files and reads eight.
    static const QTemporaryDir folder(QDir(QStringLiteral("/dev/shm")).exists()
                                          ? QStringLiteral("/dev/shm/voltbok-fuzz-XXXXXX")
                                          : QDir::temp().filePath(QStringLiteral("voltbok-fuzz-XXXXXX")));
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString fault = roundTripFault(bytes, folder.path());
    if (!fault.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(fault));
        std::abort();
    }
    return 0;
}
