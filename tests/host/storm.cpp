// SPDX-License-Identifier: GPL-3.0-or-later
// A storm of changes on the window over the folder named by the argument, kept as the host program keeps it,
// until the process is killed. After each save one line on standard output: the time in milliseconds and the
// cycles saved.
#include "backupkeeper.h"
#include "backups.h"
#include "folderlock.h"
#include "gui/voltbokgui.h"
#include "records/batterywidget.h"
#include "recovery.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    FolderLock lock;
    if (!lock.take(folder).isEmpty())
        return 2;
    if (Recovery::isBroken(folder) &&
        !Recovery::replaceBroken(folder, Backups::newestWhole(folder)).isEmpty())
        return 3;

    VoltbokGui window;
    window.changeStoragePath(folder);
    window.show();
    BatteryWidget *card = nullptr;
    const auto cards = window.findChildren<BatteryWidget *>();
    for (BatteryWidget *candidate : cards) {
        if (candidate->getBatteryName() == QStringLiteral(BATTERY))
            card = candidate;
    }
    if (!card)
        return 4;
    auto *button = card->findChild<QPushButton *>(QStringLiteral("pushButton"));
    const BackupKeeper backups(folder);
    QTimer storm;
    QObject::connect(&storm, &QTimer::timeout, &window, [&] {
        button->click(); // charges or discharges: either way the file is rewritten before this returns
        std::printf("%lld %u\n", static_cast<long long>(QDateTime::currentMSecsSinceEpoch()),
                    card->getBatteryCycles());
        std::fflush(stdout);
    });
    storm.start(0);
    return QApplication::exec();
}
