// SPDX-License-Identifier: GPL-3.0-or-later
// Obeys one word a line on standard input, about the folder named by the argument, and answers each with one
// line: take, break   takes the locks: "taken", or "here", "takeover" or "refused" and the reason serve makes
// the server that a second start speaks to; it says "raised" when one did raise         asks the first start
// to raise its window It ends in order when the input ends. LOCKHOLDER_USER is the number of the user that it
// becomes first.
#include "host/safety/folderlock.h"
#include "host/safety/instanceserver.h"
#include "host/safety/storagefolder.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <memory>
#include <string>

using namespace Qt::Literals::StringLiterals;

using namespace Host;

namespace {

void say(const QString &line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

void tell(const FolderLock::Refusal &refusal)
{
    say(refusal.problem.isEmpty() ? u"taken"_s
                                  : (refusal.isOpenHere    ? u"here "_s
                                     : refusal.mayTakeOver ? u"takeover "_s
                                                           : u"refused "_s) +
                                        refusal.problem);
}

} // namespace

/** Stands in for that of the system, also in Qt: removing a file takes long enough for others to come
 * between. */
extern "C" int unlink(const char *path) noexcept
{
    usleep(static_cast<useconds_t>(qEnvironmentVariableIntValue("LOCKHOLDER_PAUSE")));
    return unlinkat(AT_FDCWD, path, 0);
}

int main(int argc, char *argv[])
{
    const uid_t user = static_cast<uid_t>(qEnvironmentVariableIntValue("LOCKHOLDER_USER"));
    if (user != 0 && (setgid(user) != 0 || setuid(user) != 0))
        return 2;
    const QCoreApplication application(argc, argv);
    const StorageFolder folder(QString::fromLocal8Bit(argv[1]));
    FolderLock lock;
    std::unique_ptr<InstanceServer> server;

    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &input, [&] {
        std::string word;
        if (!std::getline(std::cin, word))
            return QCoreApplication::quit();
        if (word == "take")
            return tell(lock.take(folder));
        if (word == "break")
            return tell(lock.breakAndTake(folder));
        if (word == "raise")
            return say(InstanceServer::raiseFirst(folder) ? u"answered"_s : u"silence"_s);
        server = std::make_unique<InstanceServer>(folder);
        QObject::connect(server.get(), &InstanceServer::raiseRequested, server.get(),
                         [] { say(u"raised"_s); });
        say(u"serving"_s);
    });
    return QCoreApplication::exec();
}
