// SPDX-License-Identifier: GPL-3.0-or-later
// The flight book as the window shows, prints and saves it.
#include "host/window/flightbookdialog.h"
#include "host/window/flightbookpreview.h"
#include "tests/host/support/hostwindow.h"
#include "tests/host/support/plainlogbook.h"
#include "tests/support/brokendisk.h"
#include "tests/support/files.h"

#include "host/data/cataloguefile.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

namespace {

Catalogue many(int count)
{
    Catalogue catalogue = logbook();
    for (int i = 0; i < count; ++i)
        catalogue.models[0].log.append(flight(at(13, 0).addSecs(i)));
    return catalogue;
}

/** What another program reads in a PDF file. */
QString read(const QStringList &arguments)
{
    QProcess reader;
    reader.start(u"pdftotext"_s, arguments);
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput());
}

/** The text with single blanks. */
QString textOf(const QString &path)
{
    return read({u"-layout"_s, path, u"-"_s}).simplified();
}

/** The dialog on show, with a folder of its own. */
struct Shown
{
    explicit Shown(const Catalogue &catalogue = logbook())
        : dialog(std::make_shared<const Catalogue>(catalogue), questions)
    {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    }

    void complete() { QTRY_VERIFY_WITH_TIMEOUT(dialog.m_pages->isComplete(), 20'000); }
    QString file(const QString &name) const { return folder.filePath(name); }
    QString message() const { return dialog.m_message->isVisible() ? dialog.m_message->text() : QString(); }

    QTemporaryDir folder;
    ScriptedQuestions questions;
    FlightBookDialog dialog;
};

} // namespace

class FlightBookDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMenuOpensIt();
    void atFirstAllFlightsAreInIt();
    void daysAndModelsLimitIt();
    void daysTheWrongWayRoundAreSaidAndCannotBePrinted();
    void thePreviewShowsEachPage();
    void aLargeBookIsLaidOutWhileTheWindowLives();
    void itIsSavedOnTheChosenPaper();
    void whatCannotBeSavedIsSaid();
    void whoChoosesNoFileSavesNothing();
    void savingAndPrintingCanBeCancelled();
    void itIsPrinted();
    void whatCannotBePrintedIsSaid();
    void keysAloneAreEnough();
    void everyFieldHasANameAndAnAccessKeyOfItsOwn();
    void itFitsOnASmallScreenInLargeLetters();
};

void FlightBookDialogTest::theMenuOpensIt()
{
    HostWindow window(CatalogueFile::save(logbook()).document);
    bool isShown = false;
    QTimer::singleShot(0, &window.window(), [&isShown] {
        const auto *dialog = qobject_cast<FlightBookDialog *>(QApplication::activeModalWidget());
        isShown = dialog && dialog->book().entries.size() == 5;
        while (QWidget *open = QApplication::activeModalWidget())
            static_cast<QDialog *>(open)->reject();
    });
    QAction *entry = nullptr;
    const auto menus = window.window().menuBar()->findChildren<QMenu *>();
    for (const QMenu *menu : menus) {
        for (QAction *action : menu->actions()) {
            if (action->text().remove(u'&') == u"Flight Book (print, PDF)…"_s)
                entry = action;
        }
    }
    QVERIFY(entry);
    entry->trigger();
    QVERIFY(isShown);
}

void FlightBookDialogTest::atFirstAllFlightsAreInIt()
{
    Shown shown;
    QCOMPARE(shown.dialog.m_summary->text(), u"Flights: 5, time in the air: 00:32:30."_s);
    QVERIFY(!shown.dialog.book().models);
    QVERIFY(!shown.dialog.book().range.isLimited());
}

void FlightBookDialogTest::daysAndModelsLimitIt()
{
    Catalogue catalogue = logbook();
    catalogue.models.append(catalogue.models.first()); // of the same name
    Shown shown(catalogue);
    FlightBookDialog &dialog = shown.dialog;
    QCOMPARE(dialog.m_models->count(), 2);
    dialog.m_models->item(0)->setCheckState(Qt::Unchecked);
    QCOMPARE(dialog.book().models, std::optional(QStringList{u"Firebrand"_s}));
    QCOMPARE(dialog.m_summary->text(), u"Flights: 2, time in the air: 00:13:00."_s);
    dialog.m_isFrom->click();
    dialog.m_from->setDate(QDate(2026, 5, 3));
    QCOMPARE(dialog.book().entries.size(), 1); // not the one without a time
    dialog.m_isTo->click();
    dialog.m_to->setDate(QDate(2026, 5, 3));
    QCOMPARE(dialog.book().entries.size(), 1);
    dialog.m_from->setDate(QDate(2026, 5, 1));
    dialog.m_to->setDate(QDate(2026, 5, 2));
    QCOMPARE(dialog.m_summary->text(), u"Flights: 0, time in the air: 00:00:00."_s);
    dialog.m_isFrom->click();
    dialog.m_isTo->click();
    dialog.m_models->item(1)->setCheckState(Qt::Unchecked);
    QCOMPARE(dialog.book().entries.size(), 0); // none is not all
}

void FlightBookDialogTest::daysTheWrongWayRoundAreSaidAndCannotBePrinted()
{
    Shown shown;
    FlightBookDialog &dialog = shown.dialog;
    dialog.m_from->setDate(QDate(2026, 5, 4));
    dialog.m_to->setDate(QDate(2026, 5, 3));
    dialog.m_isFrom->click();
    QVERIFY(dialog.m_save->isEnabled());
    dialog.m_isTo->click();
    QCOMPARE(dialog.m_summary->text(), u"The first day is after the last one."_s);
    QVERIFY(!dialog.m_save->isEnabled() && !dialog.m_print->isEnabled() && !dialog.m_page->isEnabled());
    QTest::qWait(50);
    dialog.m_to->setDate(QDate(2026, 5, 4));
    QVERIFY(dialog.m_save->isEnabled() && dialog.m_print->isEnabled() && dialog.m_page->isEnabled());
}

void FlightBookDialogTest::thePreviewShowsEachPage()
{
    Shown shown(many(200));
    shown.complete();
    FlightBookDialog &dialog = shown.dialog;
    QVERIFY(dialog.m_page->maximum() >= 4);
    QCOMPARE(dialog.m_page->text(), u"1 of %1"_s.arg(dialog.m_pages->count()));
    const QImage first = dialog.m_preview->grab().toImage();
    QCOMPARE(dialog.m_preview->accessibleName(), u"Preview of page 1"_s);
    qint64 ink = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x)
            ink += qGray(first.pixel(x, y)) < 200 ? 1 : 0;
    }
    QVERIFY2(ink > 1000, qPrintable(QString::number(ink)));
    dialog.m_page->setFocus();
    QTest::keyClick(dialog.m_page, Qt::Key_Up);
    QCOMPARE(dialog.m_preview->accessibleName(), u"Preview of page 2"_s);
    QVERIFY(dialog.m_preview->grab().toImage() != first);
}

void FlightBookDialogTest::aLargeBookIsLaidOutWhileTheWindowLives()
{
    Shown shown(many(5000));
    QElapsedTimer longest;
    qint64 pause = 0;
    QTimer beat;
    longest.start();
    connect(&beat, &QTimer::timeout, this, [&] { pause = qMax(pause, longest.restart()); });
    beat.start(0);
    QVERIFY(!shown.dialog.m_pages->isComplete());
    QCOMPARE(shown.dialog.m_preview->accessibleName(), u"Preview of page 1"_s);
    shown.complete();
    qInfo("longest pause %lld ms", static_cast<long long>(pause));
    QVERIFY(pause < 1000);
}

void FlightBookDialogTest::itIsSavedOnTheChosenPaper()
{
    Shown shown;
    LogbookWindow::choose(shown.dialog.m_paper, u"Letter"_s);
    shown.questions.chooseFile(shown.file(u"book.pdf"_s));
    LogbookWindow::click(shown.dialog.m_save);
    QVERIFY(shown.questions.isDone());
    QCOMPARE(shown.questions.proposed(), QStringList{u"Flight book.pdf"_s});
    QCOMPARE(shown.message(), u"The flight book is saved in “%1”."_s.arg(shown.file(u"book.pdf"_s)));
    const QString text = textOf(shown.file(u"book.pdf"_s));
    QVERIFY2(text.contains(u"10:00:00 00:06:30 Skylark A; B Hill calm"_s), qPrintable(text));
    QVERIFY2(text.contains(u"In all 00:32:30 Flights: 5"_s), qPrintable(text));
    QVERIFY(Test::contents(shown.file(u"book.pdf"_s)).contains("/MediaBox [0 0 612"));
}

void FlightBookDialogTest::whatCannotBeSavedIsSaid()
{
    Shown shown;
    QVERIFY(Test::write(shown.file(u"book.pdf"_s), "mine"));
    shown.questions.chooseFile(shown.file(u"book.pdf"_s));
    {
        const FullDisk disk(600);
        QVERIFY(disk.works());
        LogbookWindow::click(shown.dialog.m_save);
    }
    QCOMPARE(shown.message(), u"The flight book was not saved in “%1”: the file would be too large. Choose "
                              "another place for it."_s.arg(shown.file(u"book.pdf"_s)));
    QCOMPARE(shown.dialog.m_message->accessibleName(), shown.message());
    QCOMPARE(Test::contents(shown.file(u"book.pdf"_s)), QByteArray("mine"));
    shown.dialog.m_isFrom->click();
    QCOMPARE(shown.message(), QString()); // told once
}

void FlightBookDialogTest::whoChoosesNoFileSavesNothing()
{
    Shown shown;
    shown.questions.chooseFile(QString());
    LogbookWindow::click(shown.dialog.m_save);
    shown.questions.printTo(QString());
    LogbookWindow::click(shown.dialog.m_print);
    QVERIFY(shown.questions.isDone());
    QCOMPARE(shown.message(), QString());
    QVERIFY(QDir(shown.folder.path()).isEmpty());
}

void FlightBookDialogTest::savingAndPrintingCanBeCancelled()
{
    for (const int steps : {1, 30, 90}) {
        Shown shown(many(500));
        shown.questions.cancelAfter(steps);
        shown.questions.chooseFile(shown.file(u"book.pdf"_s));
        LogbookWindow::click(shown.dialog.m_save);
        QVERIFY(QDir(shown.folder.path()).isEmpty());
        QCOMPARE(shown.message(), QString());
        shown.questions.printTo(shown.file(u"print.pdf"_s));
        LogbookWindow::click(shown.dialog.m_print);
        QCOMPARE(shown.message(), QString());
        QCOMPARE(shown.questions.works(),
                 (QStringList{u"The flight book is saved…"_s, u"The flight book is printed…"_s}));
    }
}

void FlightBookDialogTest::itIsPrinted()
{
    Shown shown(many(100));
    shown.dialog.m_models->item(1)->setCheckState(Qt::Unchecked);
    shown.questions.printTo(shown.file(u"print.pdf"_s));
    LogbookWindow::click(shown.dialog.m_print);
    QCOMPARE(shown.message(), QString());
    QCOMPARE(shown.questions.proposed(), QStringList{u"Flight book"_s});
    const QString text = textOf(shown.file(u"print.pdf"_s));
    QVERIFY2(text.contains(u"10:00:00 00:06:30 Skylark A; B Hill calm"_s), qPrintable(text));
    QVERIFY2(text.contains(u"Flights: 103"_s) && text.contains(u"Page 3 of 3"_s), qPrintable(text));
    QVERIFY(!text.contains(u"Firebrand"_s));
    // Where its own margins leave it, in points: not within those of the printer.
    static const QRegularExpression first(u"<word xMin=\"([\\d.]+)\""_s);
    const double left =
        first.match(read({u"-bbox"_s, shown.file(u"print.pdf"_s), u"-"_s})).captured(1).toDouble();
    QVERIFY2(left > 41 && left < 45, qPrintable(QString::number(left)));
}

void FlightBookDialogTest::whatCannotBePrintedIsSaid()
{
    Shown shown;
    shown.questions.printTo(shown.file(u"none/print.pdf"_s));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"."_s));
    LogbookWindow::click(shown.dialog.m_print);
    QVERIFY2(shown.message().contains(u"was not printed"_s), qPrintable(shown.message()));
    QVERIFY2(shown.message().endsWith(u"Choose another one."_s), qPrintable(shown.message()));
}

void FlightBookDialogTest::keysAloneAreEnough()
{
    Shown shown;
    FlightBookDialog &dialog = shown.dialog;
    QSet<QWidget *> reached;
    dialog.m_isFrom->setFocus();
    QTest::keyClick(dialog.m_isFrom, Qt::Key_Space); // its date is reached then, too
    for (int i = 0; i < 20; ++i) {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (QWidget *field :
         std::initializer_list<QWidget *>{dialog.m_isFrom, dialog.m_from, dialog.m_isTo, dialog.m_models,
                                          dialog.m_paper, dialog.m_page, dialog.m_print, dialog.m_save})
        QVERIFY2(reached.contains(field), qPrintable(field->accessibleName()));
    dialog.m_models->setFocus();
    QTest::keyClick(dialog.m_models, Qt::Key_Space);
    QVERIFY(dialog.book().models);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void FlightBookDialogTest::everyFieldHasANameAndAnAccessKeyOfItsOwn()
{
    Shown shown;
    const FlightBookDialog &dialog = shown.dialog;
    for (const QWidget *field :
         std::initializer_list<QWidget *>{dialog.m_isFrom, dialog.m_from, dialog.m_isTo, dialog.m_to,
                                          dialog.m_models, dialog.m_paper, dialog.m_preview, dialog.m_page})
        QVERIFY(!field->accessibleName().isEmpty());
    QStringList keys;
    const auto addKey = [&keys](const QString &text) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (!key.isEmpty())
            keys.append(key);
    };
    const auto labels = dialog.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy())
            addKey(label->text());
    }
    const auto buttons = dialog.findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons)
        addKey(button->text());
    QVERIFY(keys.size() >= 7);
    QCOMPARE(keys.removeDuplicates(), 0);
}

void FlightBookDialogTest::itFitsOnASmallScreenInLargeLetters()
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 2);
    QApplication::setFont(large);
    {
        Shown shown;
        const QSize least = shown.dialog.minimumSizeHint();
        QVERIFY2(least.width() <= 1024 && least.height() <= 700,
                 qPrintable(u"%1 x %2"_s.arg(least.width()).arg(least.height())));
    }
    QApplication::setFont(before);
}

QTEST_MAIN(FlightBookDialogTest)
#include "tst_flightbookdialog.moc"
