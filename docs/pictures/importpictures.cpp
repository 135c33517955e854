// SPDX-License-Identifier: GPL-3.0-or-later
// Plays a day at the field through with the sample logbook, and saves the import of the radio's card as
// pictures of the manual.
#include "docs/pictures/manualpictures.h"
#include "gui/voltbokgui.h"
#include "host/safety/folderlock.h"
#include "host/window/columnsdialog.h"
#include "host/window/importdialog.h"
#include "host/window/mainwindow.h"
#include "host/window/questions.h"
#include "records/batterywidget.h"
#include "tests/host/support/playedday.h"
#include "tests/host/support/shownclock.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QMenuBar>
#include <QPixmap>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdlib>
#include <functional>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LongEnough = 20'000; // ms

/** Nobody is there but the one who makes the pictures, and who chooses the card. */
class Chooser final : public Questions
{
public:
    explicit Chooser(QString folder)
        : m_folder(std::move(folder))
    {
    }
    Answer ask(const Question &question) override { return {question.refusal, -1}; }
    void tell(const QString &) override {}
    QString chooseFolder(const QString &) override { return m_folder; }
    QString chooseSaveFile(const QString &, const QString &, const QStringList &) override
    {
        return QString();
    }
    void print(const QString &, const std::function<void(QPrinter &)> &) override {}

private:
    QString m_folder;
};

class Evening
{
public:
    Evening(const QString &folder, const QString &card, const ManualPictures &pictures)
        : m_questions(card)
        , m_pictures(pictures)
    {
        const StorageFolder storage(folder);
        auto lock = std::make_shared<FolderLock>();
        if (!lock->take(storage).problem.isEmpty())
            qFatal("The sample logbook cannot be locked.");
        m_window.open(storage, std::move(lock));
        m_window.show();
    }

    void click(const QString &battery);
    void import();
    void shootColumns(const QString &log);

private:
    void wait(const std::function<bool()> &isDone);
    void useDialog(ImportDialog &dialog);
    void save(QWidget &widget, const QString &name);

    Chooser m_questions;
    const ManualPictures &m_pictures;
    MainWindow m_window{m_questions};
};

void Evening::click(const QString &battery)
{
    const auto cards = m_window.findChildren<BatteryWidget *>();
    for (BatteryWidget *card : cards) {
        if (card->isVisible() && card->getBatteryName() == battery)
            return card->findChild<QAbstractButton *>()->click();
    }
    qFatal("The sample logbook has no battery %s on its overview.", qPrintable(battery));
}

void Evening::wait(const std::function<bool()> &isDone)
{
    QElapsedTimer waited;
    for (waited.start(); !isDone(); QCoreApplication::processEvents(QEventLoop::AllEvents, 10)) {
        if (waited.elapsed() > LongEnough)
            qFatal("The logs are not read.");
    }
}

/** From the menu, as a pilot does. */
void Evening::import()
{
    const auto actions = m_window.findChildren<QAction *>();
    const auto action = std::find_if(actions.cbegin(), actions.cend(), [](const QAction *each) {
        return each->text() == MainWindow::tr("&Import Radio Logs…");
    });
    QTimer::singleShot(0, &m_window, [this] {
        useDialog(*qobject_cast<ImportDialog *>(QApplication::activeModalWidget()));
    });
    (*action)->trigger();
    m_window.showPage(u"flights"_s);
    m_window.resize(980, 640);
    save(m_window, u"import-result"_s);
}

void Evening::useDialog(ImportDialog &dialog)
{
    const auto *table = dialog.findChild<QTableView *>();
    dialog.findChildren<QPushButton *>().at(1)->click(); // the folder or card
    wait([table] { return table->isEnabled() && table->model()->rowCount() > 0; });
    dialog.resize(900, 320);
    save(dialog, u"import-dialog"_s);
    table->model()->setData(table->model()->index(2, 0), Qt::Checked, Qt::CheckStateRole);
    dialog.accept();
}

void Evening::shootColumns(const QString &log)
{
    QFile file(log);
    if (!file.open(QFile::ReadOnly))
        qFatal("A log cannot be read.");
    ColumnsDialog dialog(readRadioLog(file, log), QFileInfo(log).fileName(), 0);
    dialog.show();
    save(dialog, u"import-columns"_s);
}

void Evening::save(QWidget &widget, const QString &name)
{
    QCoreApplication::processEvents(); // lays out what was shown
    m_pictures.save(widget.grab(), name);
}

/** A log with sensors that have other names than usual. */
QString logOfOtherColumns(const QString &folder)
{
    const QString name = folder + u"/Skylark-2026-11-14-161500.csv"_s;
    MadeLogs::Plan plan;
    plan.start = PlayedDay::at(16, 15);
    const QByteArray sensors = "RSSI(dB),VFAS(V),Curr(A),mAh(mAh)";
    QByteArray bytes = MadeLogs::Text(sensors).add(MadeLogs::flight({}, plan)).bytes();
    bytes.replace(sensors, "RSSI(dB),Pack(V),Motor(A),Drawn(mAh)");
    QFile file(name);
    if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("A log cannot be written.");
    return name;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(u"Voltbok"_s);
    const QApplication application(argc, argv);
    const ManualPictures pictures;
    const QTemporaryDir place;
    const QString folder = place.filePath(u"Voltbok"_s);
    if (!QDir().mkpath(folder) || !QFile::copy(pictures.sample(), folder + u"/voltbok.xml"_s))
        qFatal("Cannot copy %s.", qPrintable(pictures.sample()));
    const QString card = PlayedDay::writeCard(place.filePath(u"card"_s));
    ShownClock::set(PlayedDay::at(9, 0));
    Evening evening(folder, card, pictures);
    for (int i = 0; i < 2; ++i) {
        ShownClock::set(PlayedDay::clicks().at(i));
        evening.click(PlayedDay::batteries().at(i));
        QCoreApplication::processEvents();
    }
    ShownClock::set(PlayedDay::evening());
    evening.import();
    evening.shootColumns(logOfOtherColumns(place.path()));
    return EXIT_SUCCESS;
}
