// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/exportdialog.h"

#include "host/exchange/xlsx.h"
#include "host/window/exportnames.h"
#include "host/window/exportpreview.h"
#include "tests/host/support/hostwindow.h"
#include "tests/host/support/plainlogbook.h"
#include "tests/host/support/scriptedquestions.h"
#include "tests/support/brokendisk.h"
#include "tests/support/files.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QThread>
#include <QTimer>

using namespace Host;

namespace {

/** The dialog on show, with a user who knows his answers. */
struct Shown
{
    explicit Shown(const Catalogue &catalogue = PlainLogbook::logbook())
        : dialog(std::make_shared<const Catalogue>(catalogue), questions)
    {
        dialog.show();
    }

    void choose(ExportFormat format)
    {
        dialog.m_format->setCurrentIndex(dialog.m_format->findData(static_cast<int>(format)));
    }
    void exportInto(const QString &path)
    {
        if (dialog.format() == ExportFormat::Csv || dialog.format() == ExportFormat::CsvLocal)
            questions.choose(path);
        else
            questions.chooseFile(path);
        QTest::mouseClick(dialog.m_export, Qt::LeftButton);
    }
    bool isDone()
    {
        return QTest::qWaitFor([this] { return !dialog.m_thread; }, 20'000);
    }
    QString message() const
    {
        return dialog.m_message->isVisible() ? dialog.m_message->accessibleName() : QString();
    }
    QTableWidget &table(int index) { return *qobject_cast<QTableWidget *>(dialog.m_preview->widget(index)); }
    void tick(ExportNames &names, int row) const
    {
        names.setChecked(true);
        names.m_list->item(row)->setCheckState(Qt::Checked);
    }

    ScriptedQuestions questions;
    ExportDialog dialog;
};

} // namespace

class ExportDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void workbooksAreOfferedFirst();
    void eachFormatIsWritten_data();
    void eachFormatIsWritten();
    void thePreviewFollowsTheChoices();
    void thePreviewOfALongLogbookIsShort();
    void anEmptyLogbookCanBeExported();
    void whatIsChosenIsExported();
    void daysInTheWrongOrderAreSaid();
    void filesInTheFolderAreReplacedOnlyWhenTheUserSaysSo();
    void whoChoosesNoPlaceStaysInTheDialog();
    void aFailureIsSaidInTheDialog();
    void anExportCanBeStopped();
    void closingTheDialogStopsTheExport();
    void everythingHasANameAndCanBeReachedByTab();
    void theMenuExportsAndTellsWhereTo();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    static Catalogue longLogbook();

    std::unique_ptr<QTemporaryDir> m_folder;
};

Catalogue ExportDialogTest::longLogbook()
{
    Catalogue catalogue = PlainLogbook::logbook();
    for (int i = 0; i < 60'000; ++i)
        catalogue.models.first().log.append(PlainLogbook::flight(QDateTime(), QString::number(i)));
    return catalogue;
}

void ExportDialogTest::workbooksAreOfferedFirst()
{
    Shown shown;
    QCOMPARE(shown.dialog.format(), Xlsx::isAvailable() ? ExportFormat::Xlsx : ExportFormat::CsvLocal);
    QCOMPARE(shown.dialog.m_format->count(), Xlsx::isAvailable() ? 4 : 3);
    QStringList explanations;
    for (int i = 0; i < shown.dialog.m_format->count(); ++i) {
        shown.dialog.m_format->setCurrentIndex(i);
        explanations.append(shown.dialog.m_explanation->text());
    }
    QCOMPARE(explanations.removeDuplicates(), 0);
}

void ExportDialogTest::eachFormatIsWritten_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("csv") << static_cast<int>(ExportFormat::Csv) << u"locations.csv"_s
                         << "Name\r\nMeadow\r\n"_ba;
    QTest::newRow("csv-local") << static_cast<int>(ExportFormat::CsvLocal) << u"locations.csv"_s
                               << "\xEF\xBB\xBFName\r\nMeadow\r\n"_ba;
    QTest::newRow("json") << static_cast<int>(ExportFormat::Json) << u"book.json"_s
                          << "{\"format\": \"voltbok-export\""_ba;
    if (Xlsx::isAvailable())
        QTest::newRow("xlsx") << static_cast<int>(ExportFormat::Xlsx) << u"book.xlsx"_s << "PK"_ba;
}

void ExportDialogTest::eachFormatIsWritten()
{
    QFETCH(int, format);
    QFETCH(QString, file);
    QFETCH(QByteArray, start);
    Shown shown;
    shown.choose(static_cast<ExportFormat>(format));
    const QString target = file.endsWith(u".csv"_s) ? m_folder->path() : path(file);
    shown.exportInto(target);
    QVERIFY(shown.isDone());
    QVERIFY2(Test::contents(path(file)).startsWith(start), Test::contents(path(file)).constData());
    QCOMPARE(shown.dialog.report(), u"The logbook was exported to “%1”."_s.arg(target));
    QVERIFY(!shown.dialog.isVisible());
    QVERIFY(shown.questions.isDone());
}

void ExportDialogTest::thePreviewFollowsTheChoices()
{
    Shown shown;
    QCOMPARE(shown.dialog.m_preview->tabText(0), u"batteries (3)"_s);
    QCOMPARE(shown.dialog.m_preview->tabText(3), u"flights (5)"_s);
    QTableWidget &flights = shown.table(3);
    QCOMPARE(flights.rowCount(), 5);
    QCOMPARE(flights.horizontalHeaderItem(2)->text(), u"Duration (s)"_s);
    QStringList cells;
    for (int column = 0; column < flights.columnCount(); ++column)
        cells.append(flights.item(1, column)->text());
    QCOMPARE(cells, QStringList({u"Skylark"_s, u"2026-05-03 10:00:00"_s, u"390"_s, u"Hill"_s, u"18"_s,
                                 u"A; B"_s, u"calm"_s}));
    QCOMPARE(shown.table(1).item(0, 3)->text(), u"30"_s);

    shown.tick(*shown.dialog.m_batteries, 2);
    QCOMPARE(shown.dialog.m_preview->tabText(0), u"batteries (1)"_s);
    QCOMPARE(shown.table(1).rowCount(), 0);
    QCOMPARE(flights.item(1, 5)->text(), u"A; B"_s);
    shown.tick(*shown.dialog.m_models, 1);
    QCOMPARE(shown.table(3).rowCount(), 2);
    shown.dialog.m_isFrom->setChecked(true);
    shown.dialog.m_from->setDate(QDate(2026, 5, 3));
    QCOMPARE(shown.table(3).rowCount(), 1);
    shown.dialog.m_isTo->setChecked(true);
    shown.dialog.m_from->setDate(QDate(2026, 5, 1));
    shown.dialog.m_to->setDate(QDate(2026, 5, 2));
    QCOMPARE(shown.dialog.m_preview->tabText(3), u"flights (0)"_s);
}

void ExportDialogTest::thePreviewOfALongLogbookIsShort()
{
    Catalogue catalogue = longLogbook();
    for (int i = 0; i < 100; ++i) {
        catalogue.batteries.append(PlainLogbook::battery(u"Battery %1"_s.arg(i)));
        catalogue.locations.append(u"Location %1"_s.arg(i));
    }
    Shown shown(catalogue);
    QCOMPARE(shown.dialog.m_preview->tabText(3), u"flights (60,005)"_s);
    for (const int table : {0, 3, 4})
        QCOMPARE(shown.table(table).rowCount(), ExportPreview::MostRows);
    QCOMPARE(shown.table(3).item(19, 3)->text(), u"16"_s);
}

void ExportDialogTest::anEmptyLogbookCanBeExported()
{
    Shown shown{Catalogue()};
    QVERIFY(!shown.dialog.m_batteries->isEnabled());
    shown.choose(ExportFormat::Csv);
    shown.exportInto(m_folder->path());
    QVERIFY(shown.isDone());
    QCOMPARE(Test::contents(path(u"locations.csv"_s)), "Name\r\n");
}

void ExportDialogTest::whatIsChosenIsExported()
{
    Shown shown;
    shown.choose(ExportFormat::Csv);
    shown.tick(*shown.dialog.m_models, 1);
    shown.tick(*shown.dialog.m_batteries, 0);
    shown.dialog.m_isTo->setChecked(true);
    shown.dialog.m_to->setDate(QDate(2026, 5, 3));
    shown.exportInto(m_folder->path());
    QVERIFY(shown.isDone());
    QCOMPARE(Test::contents(path(u"flights.csv"_s)).split('\n').at(1),
             "Firebrand,2026-05-03 12:00:00,390,Meadow,18,B,calm\r");
    QCOMPARE(Test::contents(path(u"flights.csv"_s)).count('\n'), 2);
    QCOMPARE(Test::contents(path(u"batteries.csv"_s)).count('\n'), 2);
}

void ExportDialogTest::daysInTheWrongOrderAreSaid()
{
    Shown shown;
    shown.dialog.m_isFrom->setChecked(true);
    shown.dialog.m_isTo->setChecked(true);
    shown.dialog.m_from->setDate(QDate(2026, 5, 4));
    shown.dialog.m_to->setDate(QDate(2026, 5, 3));
    QCOMPARE(shown.message(), u"The first day is later than the last one. Change one of them."_s);
    QVERIFY(!shown.dialog.m_export->isEnabled());
    shown.dialog.m_isTo->setChecked(false);
    QCOMPARE(shown.message(), QString());
    QVERIFY(shown.dialog.m_export->isEnabled());
}

void ExportDialogTest::filesInTheFolderAreReplacedOnlyWhenTheUserSaysSo()
{
    QVERIFY(Test::write(path(u"models.csv"_s), "mine"));
    Shown shown;
    shown.choose(ExportFormat::Csv);
    shown.questions.answer(u"Cancel"_s);
    shown.exportInto(m_folder->path());
    QVERIFY(shown.isDone());
    QVERIFY(shown.dialog.isVisible());
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList(u"models.csv"_s));
    QCOMPARE(Test::contents(path(u"models.csv"_s)), "mine");
    QVERIFY(shown.questions.asked().first().details.contains(u"models.csv"_s));

    shown.questions.answer(u"Replace"_s);
    shown.exportInto(m_folder->path());
    QVERIFY(shown.isDone());
    QVERIFY(Test::contents(path(u"models.csv"_s)).startsWith("Name,"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 5);
}

void ExportDialogTest::whoChoosesNoPlaceStaysInTheDialog()
{
    Shown shown;
    shown.exportInto(QString());
    QVERIFY(shown.isDone());
    QVERIFY(shown.dialog.isVisible());
    QCOMPARE(shown.dialog.report(), QString());
    QTest::keyClick(&shown.dialog, Qt::Key_Escape);
    QVERIFY(!shown.dialog.isVisible());
}

void ExportDialogTest::aFailureIsSaidInTheDialog()
{
    Shown shown;
    shown.choose(ExportFormat::Json);
    shown.exportInto(path(u"none/book.json"_s));
    QVERIFY(shown.isDone());
    QVERIFY(shown.dialog.isVisible());
    QCOMPARE(shown.message(),
             u"There is no folder “%1”. Nothing was exported. Choose another place, or free some "
             "space, and export again."_s.arg(path(u"none"_s)));
    QVERIFY(!shown.dialog.m_progress->isVisible());
    shown.exportInto(path(u"book.json"_s));
    QVERIFY(shown.isDone());
    QVERIFY(!shown.dialog.isVisible());
}

void ExportDialogTest::anExportCanBeStopped()
{
    Shown shown(longLogbook());
    shown.exportInto(path(u"book.xlsx"_s));
    QVERIFY(shown.dialog.m_progress->isVisible());
    QVERIFY(!shown.dialog.m_batteries->isEnabled());
    QTest::keyClick(&shown.dialog, Qt::Key_Escape);
    QVERIFY(shown.dialog.isVisible());
    QVERIFY(shown.isDone());
    QCOMPARE(shown.message(), u"The export was stopped. Nothing was written."_s);
    QVERIFY(QDir(m_folder->path()).isEmpty());
    QVERIFY(shown.dialog.m_export->isEnabled());
}

void ExportDialogTest::closingTheDialogStopsTheExport()
{
    {
        Shown shown(longLogbook());
        shown.exportInto(path(u"book.xlsx"_s));
    }
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void ExportDialogTest::everythingHasANameAndCanBeReachedByTab()
{
    Shown shown;
    shown.dialog.m_batteries->setChecked(true);
    shown.dialog.m_models->setChecked(true);
    shown.dialog.m_isFrom->setChecked(true);
    shown.dialog.m_isTo->setChecked(true);
    QVERIFY(QTest::qWaitForWindowActive(&shown.dialog));
    QSet<QWidget *> reached;
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached.insert(QApplication::focusWidget());
    }
    const QList<QWidget *> wanted{shown.dialog.m_format,
                                  shown.dialog.m_isFrom,
                                  shown.dialog.m_from,
                                  shown.dialog.m_isTo,
                                  shown.dialog.m_to,
                                  shown.dialog.m_batteries,
                                  shown.dialog.m_batteries->m_list,
                                  shown.dialog.m_models,
                                  shown.dialog.m_models->m_list,
                                  &shown.table(0),
                                  shown.dialog.m_export};
    for (QWidget *widget : wanted) {
        QVERIFY2(reached.contains(widget), widget->metaObject()->className());
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(!interface->text(QAccessible::Name).isEmpty(), widget->metaObject()->className());
    }
}

void ExportDialogTest::theMenuExportsAndTellsWhereTo()
{
    HostWindow window;
    const QString target = path(u"book.json"_s);
    for (int i = 0; i < 2; ++i) {
        window.questions.chooseFile(target);
        QTimer::singleShot(0, &window.window(), [] {
            auto *dialog = qobject_cast<ExportDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->m_format->setCurrentIndex(dialog->m_format->count() - 1);
            dialog->accept();
        });
        window.window().exportLogbook();
        QCOMPARE(window.message(u"export"_s), u"The logbook was exported to “%1”."_s.arg(target));
        window.messages().retract(u"export"_s);
    }
    QVERIFY(Test::contents(target).startsWith("{\"format\""));
}

QTEST_MAIN(ExportDialogTest)
#include "tst_exportdialog.moc"
