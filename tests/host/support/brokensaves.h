// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/hostwindow.h"
#include "tests/support/brokendisk.h"

#include <functional>
#include <memory>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>

using namespace Qt::Literals::StringLiterals;

/** Something that keeps the data file from being written, until it goes. */
using Fault = std::shared_ptr<void>;
using MakeFault = std::function<Fault(HostWindow &)>;
Q_DECLARE_METATYPE(MakeFault)

namespace Faults {

inline Fault readOnlyFile(HostWindow &window)
{
    auto fault = std::make_shared<Refusal>(window.filePath(), 0444);
    return fault->works() ? fault : nullptr;
}

/** No file grows beyond this many bytes; those of temporary folders do not, either. */
inline MakeFault fullDisk(rlim_t size)
{
    return [size](HostWindow &) -> Fault {
        auto fault = std::make_shared<FullDisk>(size);
        return fault->works() ? fault : nullptr;
    };
}

/** Something else lies where the file was. */
inline Fault inItsPlace(HostWindow &window, const std::function<bool(const QString &)> &put,
                        const std::function<void(const QString &)> &remove)
{
    const QString path = window.filePath();
    const QString before = window.place() + u"/before"_s;
    if (!QFile::rename(path, before) || !put(path))
        return nullptr;
    window.settle();
    return Fault(&window, [path, before, remove](void *) {
        remove(path);
        QFile::rename(before, path);
    });
}

inline Fault folderInItsPlace(HostWindow &window)
{
    const auto put = [](const QString &path) { return QDir().mkdir(path); };
    return inItsPlace(window, put, [](const QString &path) { QDir().rmdir(path); });
}

inline Fault linkToNowhereInItsPlace(HostWindow &window)
{
    const auto put = [](const QString &path) { return QFile::link(u"/not/there"_s, path); };
    return inItsPlace(window, put, [](const QString &path) { QFile::remove(path); });
}

/** The folder is gone, and a file of its name keeps it from being made again. */
inline Fault fileInTheFoldersPlace(HostWindow &window)
{
    const QString path = window.path();
    const QString before = window.place() + u"/before"_s;
    QFile file(path);
    if (!QFile::rename(path, before) || !file.open(QIODevice::WriteOnly))
        return nullptr;
    window.settle();
    return Fault(&window, [path, before](void *) {
        QFile::remove(path);
        QFile::rename(before, path);
    });
}

inline bool setImmutable(const QString &path, bool immutable)
{
    const int file = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    int flags = 0;
    bool done = file >= 0 && ioctl(file, FS_IOC_GETFLAGS, &flags) == 0;
    flags = immutable ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    done = done && ioctl(file, FS_IOC_SETFLAGS, &flags) == 0;
    close(file);
    return done;
}

/** A file that not even root can write; not every machine can do this. */
inline Fault immutableFile(HostWindow &window)
{
    const QString path = window.filePath();
    if (!setImmutable(path, true))
        return nullptr;
    return Fault(&window, [path](void *) { setImmutable(path, false); });
}

inline bool canMakeImmutable()
{
    HostWindow window;
    return immutableFile(window) != nullptr;
}

/** The logbook lies on a small disk of its own, and something else fills it. */
inline Fault smallDiskThatIsFull(HostWindow &window)
{
    window.close();
    auto disk = std::make_shared<Mount>(window.path());
    const QByteArray folder = QFile::encodeName(window.path());
    if (!disk->works() || mount("none", folder, nullptr, MS_REMOUNT, "size=64k") != 0)
        return nullptr;
    window.underneath = disk;
    window.put(HostWindow::sample());
    window.restart();
    const QString filler = window.path() + u"/filler"_s;
    QFile file(filler);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return nullptr;
    while (file.write(QByteArray(512, 'x')) > 0) {
    }
    return Fault(&window, [filler](void *) { QFile::remove(filler); });
}

inline void addCutting()
{
    QTest::newRow("a full disk takes nothing") << fullDisk(0);
    QTest::newRow("a full disk takes the prolog") << fullDisk(60);
    QTest::newRow("a full disk takes half") << fullDisk(700);
}

} // namespace Faults
