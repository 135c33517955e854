// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the dialogs of the program and the tabs of its side panel for the manual, over the sample logbook.
#include "docs/pictures/manualpictures.h"
#include "host/data/cataloguefile.h"
#include "host/safety/backups.h"
#include "host/safety/folderlock.h"
#include "host/safety/wholefile.h"
#include "host/window/backupsdialog.h"
#include "host/window/mainwindow.h"
#include "host/window/questions.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPixmap>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdlib>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

void write(const QString &path, const QByteArray &bytes)
{
    if (!WholeFile::write(path, bytes).isEmpty())
        qFatal("Cannot write %s.", qPrintable(path));
}

/** The sample, and three copies of what it was like. */
void fill(const StorageFolder &folder, const ManualPictures &pictures)
{
    const QByteArray sample = WholeFile::read(pictures.sample()).bytes;
    write(folder.dataFile(), sample);
    if (!folder.backups().mkpath(u"."_s))
        qFatal("Cannot make %s.", qPrintable(folder.backups().path()));
    Catalogue catalogue = CatalogueFile::load(sample).catalogue;
    Copy copy;
    const auto put = [&](const QByteArray &document) {
        ++copy.number;
        copy.time = QDateTime(QDate(2026, 11, 10), QTime(17, 20)).addSecs(3600 * qint64(copy.number)).toUTC();
        write(folder.backups().filePath(Backups::fileName(copy)), document);
    };
    put(sample.chopped(1000));
    Catalogue earlier = catalogue;
    earlier.batteries.removeLast();
    for (int flights = 0; flights < 2; ++flights)
        earlier.models.first().log.removeLast();
    put(CatalogueFile::save(earlier).document);
    Flight missed = catalogue.models.first().log.constLast();
    missed.time = missed.time.addSecs(1500);
    missed.notes = pictures.written(u"The best flight of the day."_s, u"Der beste Flug des Tages."_s);
    catalogue.models.first().log.append(missed);
    put(CatalogueFile::save(catalogue).document);
}

bool isRead(const QAbstractItemModel &copies)
{
    for (int row = 0; row < copies.rowCount(); ++row) {
        if (copies.index(row, 2).data() == u"…"_s)
            return false;
    }
    return true;
}

/** Chooses the copy with the flight that is missing. @return whether all copies are read, and what differs.
 */
bool isReady(const QDialog &box)
{
    constexpr int Missed = 1; // its row
    bool differs = false;
    const auto tables = box.findChildren<QTableView *>();
    for (QTableView *table : tables) {
        if (table->accessibleName() != BackupsDialog::tr("Copies, the newest first")) {
            differs = table->model()->rowCount() > 0;
        } else if (!isRead(*table->model())) {
            return false;
        } else if (table->currentIndex().row() != Missed) {
            table->selectRow(Missed);
            return false;
        }
    }
    return differs;
}

/** From the menu, as a pilot does. */
void drawBackups(const MainWindow &window, const ManualPictures &pictures)
{
    QTimer looking;
    QObject::connect(&looking, &QTimer::timeout, &looking, [&pictures] {
        auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!box || !isReady(*box))
            return;
        pictures.save(box->grab(), u"backups"_s);
        box->reject();
    });
    looking.start(100);
    const auto actions = window.findChildren<QAction *>();
    const auto action = std::find_if(actions.cbegin(), actions.cend(), [](const QAction *each) {
        return each->text() == MainWindow::tr("&Backups…");
    });
    (*action)->trigger();
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const ManualPictures pictures;
    const QTemporaryDir place;
    const StorageFolder folder(place.path());
    fill(folder, pictures);
    for (const QString &tab : {u"today"_s, u"batteries"_s, u"flights"_s, u"statistics"_s})
        pictures.save(MainWindow::picture(folder, tab), u"panel-"_s + tab);
    UnattendedQuestions nobody;
    MainWindow window(nobody);
    auto lock = std::make_shared<FolderLock>();
    if (const QString problem = lock->take(folder).problem; !problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    window.open(folder, std::move(lock));
    window.show();
    while (folder.backups().entryList(QDir::Files).size() <= 3) // the program makes one of its own
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    drawBackups(window, pictures);
    return EXIT_SUCCESS;
}
