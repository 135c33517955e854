// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the dialogs of the program for the manual, over the sample logbook.
#include "host/data/cataloguefile.h"
#include "host/safety/backups.h"
#include "host/safety/folderlock.h"
#include "host/safety/wholefile.h"
#include "host/window/mainwindow.h"
#include "host/window/questions.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QMenuBar>
#include <QPixmap>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

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
void fill(const StorageFolder &folder, const QByteArray &sample)
{
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
    missed.notes = u"The best flight of the day."_s;
    catalogue.models.first().log.append(missed);
    put(CatalogueFile::save(catalogue).document);
}

/** Triggers an action of the menus, and hands the box that it opens over when it is ready. */
template <typename IsReady, typename Draw>
void openBox(MainWindow &window, const QString &text, IsReady isReady, Draw draw)
{
    QTimer looking;
    QObject::connect(&looking, &QTimer::timeout, &looking, [&] {
        auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!box || !isReady(*box))
            return;
        draw(*box);
        box->reject();
    });
    looking.start(100);
    const auto actions = window.menuBar()->findChildren<QAction *>() + window.findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->text().remove(u'&') == text)
            return action->trigger();
    }
    qFatal("There is no %s.", qPrintable(text));
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        qFatal("usage: dialogmaker SAMPLE DIRECTORY");
    const QTemporaryDir place;
    const StorageFolder folder(place.path());
    fill(folder, WholeFile::read(arguments.at(1)).bytes);
    UnattendedQuestions nobody;
    MainWindow window(nobody);
    auto lock = std::make_shared<FolderLock>();
    if (const QString problem = lock->take(folder).problem; !problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    window.open(folder, std::move(lock));
    window.show();
    constexpr int Missed = 1; // the row of the copy with the flight that is missing
    openBox(
        window, u"Backups…"_s,
        [](QDialog &box) {
            bool isReady = true;
            const auto tables = box.findChildren<QTableView *>();
            for (QTableView *table : tables) {
                const QAbstractItemModel *model = table->model();
                const bool isOfCopies = table->accessibleName() == "Copies, the newest first"_L1;
                for (int row = 0; isOfCopies && row < model->rowCount(); ++row)
                    isReady = isReady && model->index(row, 2).data() != u"…"_s;
                isReady = isReady && model->rowCount() > 0;
                if (isOfCopies && table->currentIndex().row() != Missed)
                    table->selectRow(Missed);
            }
            return isReady;
        },
        [&](QDialog &box) {
            if (!box.grab().save(QDir(arguments.at(2)).filePath(u"backups.png"_s), "PNG"))
                qFatal("Cannot write the picture.");
        });
    return EXIT_SUCCESS;
}
