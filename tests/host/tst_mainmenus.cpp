// SPDX-License-Identifier: GPL-3.0-or-later
// What stands in the menus of the program's window, and what it does.
#include "host/window/manualwindow.h"
#include "host/window/renamedialog.h"
#include "host/window/sidepanel.h"
#include "tests/host/support/panel.h"

#include <QAction>
#include <QImage>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTimer>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

/** The folders that a window asks for. */
struct Requests
{
    explicit Requests(HostWindow &window)
    {
        QObject::connect(&window.window(), &MainWindow::folderRequested, &context,
                         [this](const StorageFolder &folder) { paths.append(folder.path()); });
    }

    QStringList paths;
    QObject context;
};

} // namespace

class MainMenusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyActionHasAMnemonicAndNoShortcutTwice();
    void keysUndoAndDoAgain();
    void theMenuNamesTheSteps();
    void withoutAStepThereIsNothingToUndo();
    void nothingIsUndoneWhileAFlightIsEntered();
    void theSidePanelIsShownAndHiddenByAKey();
    void thePanelIsAsItWasAtTheNextStart();
    void anotherFolderIsAskedFor();
    void anotherFolderIsNotAskedForWhereInputWouldBeLost();
    void foldersThatWereOpenAreOffered();
    void theManualOpensOnce();
    void everyManualHasItsPictures_data();
    void everyManualHasItsPictures();
    void aboutNamesTheVersionAndTheFolder();
    void windowAndAboutHaveTheIcon();
    void aRenamedModelStaysTheChosenOne_data();
    void aRenamedModelStaysTheChosenOne();
    void quitClosesTheWindow();

private:
    static QAction *action(HostWindow &window, const QString &text);
    static QMenu *menu(HostWindow &window, const QString &title);
    static void press(HostWindow &window, const QKeySequence &key);
};

QMenu *MainMenusTest::menu(HostWindow &window, const QString &title)
{
    for (QMenu *menu : window.window().menuBar()->findChildren<QMenu *>()) {
        if (menu->title().remove(u'&') == title)
            return menu;
    }
    return nullptr;
}

QAction *MainMenusTest::action(HostWindow &window, const QString &text)
{
    for (QMenu *menu : window.window().menuBar()->findChildren<QMenu *>()) {
        for (QAction *action : menu->actions()) {
            if (action->text().remove(u'&').startsWith(text))
                return action;
        }
    }
    return nullptr;
}

void MainMenusTest::press(HostWindow &window, const QKeySequence &key)
{
    QTest::keySequence(&window.window(), key);
}

void MainMenusTest::everyActionHasAMnemonicAndNoShortcutTwice()
{
    HostWindow window;
    QStringList shortcuts;
    int count = 0;
    for (const QAction *entry : window.window().menuBar()->actions()) {
        const QMenu *menu = entry->menu();
        QVERIFY2(menu->title().contains(u'&'), qPrintable(menu->title()));
        for (const QAction *action : menu->actions()) {
            if (action->isSeparator())
                continue;
            ++count;
            QVERIFY2(action->text().contains(u'&'), qPrintable(action->text()));
            if (!action->shortcut().isEmpty())
                shortcuts.append(action->shortcut().toString());
        }
    }
    QVERIFY(count >= 8);
    QCOMPARE(shortcuts.removeDuplicates(), 0);
}

void MainMenusTest::keysUndoAndDoAgain()
{
    HostWindow window;
    const QByteArray before = window.bytes();
    window.clickCard(u"Pack B"_s);
    window.settle();
    const QByteArray after = window.bytes();
    press(window, QKeySequence::Undo);
    QCOMPARE(window.bytes(), before);
    QVERIFY(!window.battery(u"Pack B"_s)->getBatteryCharged());
    press(window, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    QCOMPARE(window.bytes(), after);
    QVERIFY(window.battery(u"Pack B"_s)->getBatteryCharged());
    QVERIFY(window.questions.asked().isEmpty());
}

void MainMenusTest::theMenuNamesTheSteps()
{
    HostWindow window;
    window.clickCard(u"Pack B"_s);
    window.settle();
    Q_EMIT menu(window, u"Edit"_s)->aboutToShow();
    QCOMPARE(action(window, u"Undo"_s)->text(), u"&Undo: Charged Pack B"_s);
    QCOMPARE(action(window, u"Redo"_s)->text(), u"&Redo"_s);
    press(window, QKeySequence::Undo);
    Q_EMIT menu(window, u"Edit"_s)->aboutToShow();
    QCOMPARE(action(window, u"Undo"_s)->text(), u"&Undo"_s);
    QCOMPARE(action(window, u"Redo"_s)->text(), u"&Redo: Charged Pack B"_s);
}

void MainMenusTest::withoutAStepThereIsNothingToUndo()
{
    HostWindow window;
    QVERIFY(!action(window, u"Undo"_s)->isEnabled());
    QVERIFY(!action(window, u"Redo"_s)->isEnabled());
    window.clickCard(u"Pack B"_s);
    window.settle();
    QVERIFY(action(window, u"Undo"_s)->isEnabled());
    press(window, QKeySequence::Undo);
    QVERIFY(!action(window, u"Undo"_s)->isEnabled());
    QVERIFY(action(window, u"Redo"_s)->isEnabled());
}

void MainMenusTest::nothingIsUndoneWhileAFlightIsEntered()
{
    HostWindow window;
    window.clickCard(u"Pack B"_s);
    window.settle();
    const QByteArray bytes = window.bytes();
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_mode);
    LogbookWindow::click(window.ui().rb_modeAdvanced);
    LogbookWindow::click(window.ui().pb_home);
    window.clickCard(u"Pack A"_s);
    QVERIFY(!action(window, u"Undo"_s)->isEnabled());
    press(window, QKeySequence::Undo);
    QCOMPARE(window.bytes(), bytes);
    LogbookWindow::click(window.ui().pb_options);
    QVERIFY(action(window, u"Undo"_s)->isEnabled());
}

void MainMenusTest::theSidePanelIsShownAndHiddenByAKey()
{
    HostWindow window;
    auto *panel = window.window().findChild<SidePanel *>();
    const bool before = panel->isVisible();
    press(window, QKeySequence(Qt::Key_F9));
    QCOMPARE(panel->isVisible(), !before);
    QCOMPARE(action(window, u"Side Panel"_s)->isChecked(), !before);
    press(window, QKeySequence(Qt::Key_F9));
    QCOMPARE(panel->isVisible(), before);
}

void MainMenusTest::thePanelIsAsItWasAtTheNextStart()
{
    HostWindow window;
    for (int times = 0; times < 2; ++times) {
        press(window, QKeySequence(Qt::Key_F9));
        const bool shown = window.window().findChild<SidePanel *>()->isVisible();
        window.window().resize(window.window().width(), 640 + 40 * times); // higher, as the screen is narrow
        const int height = window.window().height();
        QVERIFY(window.window().close());
        window.restart();
        QCOMPARE(window.window().findChild<SidePanel *>()->isVisible(), shown);
        QCOMPARE(window.window().height(), height);
    }
}

void MainMenusTest::anotherFolderIsAskedFor()
{
    HostWindow window;
    const Requests requested(window);
    window.questions.choose(window.place() + u"/other"_s);
    press(window, QKeySequence::Open);
    QCOMPARE(requested.paths.size(), 1);
    QCOMPARE(requested.paths.constFirst(), window.place() + u"/other"_s);
    window.questions.choose(window.path()); // it is open already
    press(window, QKeySequence::Open);
    window.questions.choose(QString());
    press(window, QKeySequence::Open);
    QCOMPARE(requested.paths.size(), 1);
}

void MainMenusTest::anotherFolderIsNotAskedForWhereInputWouldBeLost()
{
    HostWindow window;
    const Requests requested(window);
    window.goToEditPage();
    LogbookWindow::click(window.ui().pb_choose_addlocation);
    LogbookWindow::type(window.ui().ledt_location_new, u"Half"_s);
    window.questions.choose(window.place() + u"/other"_s);
    window.questions.answer(u"Go Back"_s);
    press(window, QKeySequence::Open);
    QCOMPARE(requested.paths.size(), 0);
    QVERIFY(window.questions.isDone());
}

void MainMenusTest::foldersThatWereOpenAreOffered()
{
    HostWindow window;
    QMenu *recent = menu(window, u"Open Recent"_s);
    Q_EMIT recent->aboutToShow();
    QCOMPARE(recent->actions().size(), 1);
    QVERIFY(!recent->actions().constFirst()->isEnabled());
    const QString other = window.place() + u"/Fish & Chips"_s;
    Settings().addRecentFolder(other);
    Q_EMIT recent->aboutToShow();
    QCOMPARE(recent->actions().size(), 1);
    QVERIFY(recent->actions().constFirst()->text().endsWith(u"Fish && Chips"_s));
    const Requests requested(window);
    recent->actions().constFirst()->trigger();
    QCOMPARE(requested.paths.constFirst(), other);
}

void MainMenusTest::theManualOpensOnce()
{
    HostWindow window;
    press(window, QKeySequence(Qt::Key_F1));
    press(window, QKeySequence(Qt::Key_F1));
    const auto manuals = window.window().findChildren<ManualWindow *>();
    QCOMPARE(manuals.size(), 1);
    QVERIFY(manuals.constFirst()->isVisible());
    QVERIFY(manuals.constFirst()->toPlainText().contains(u"Voltbok"_s));
    QTest::keyClick(manuals.constFirst(), Qt::Key_Escape);
    QTRY_VERIFY(window.window().findChildren<ManualWindow *>().isEmpty());
    QVERIFY(window.window().isVisible());
}

void MainMenusTest::everyManualHasItsPictures_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("ending");
    QTest::newRow("English") << u"en"_s << QString();
    QTest::newRow("German") << u"de"_s << u"_de"_s;
}

void MainMenusTest::everyManualHasItsPictures()
{
    QFETCH(const QString, language);
    QFETCH(const QString, ending);
    QWidget beside;
    ManualWindow::showBeside(&beside, language);
    const QRegularExpression name(u"^[a-z-]+%1\\.png$"_s.arg(ending));
    int pictures = 0;
    const QTextDocument *manual = beside.findChild<ManualWindow *>()->document();
    for (QTextBlock block = manual->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextImageFormat format = it.fragment().charFormat().toImageFormat();
            if (!format.isValid())
                continue;
            ++pictures;
            QVERIFY2(name.match(format.name()).hasMatch(), qPrintable(format.name()));
            QVERIFY2(!QImage(u":/manual/"_s + format.name()).isNull(), qPrintable(format.name()));
        }
    }
    QVERIFY(pictures > 5);
}

void MainMenusTest::aboutNamesTheVersionAndTheFolder()
{
    QCoreApplication::setApplicationVersion(u"7.8.9"_s);
    HostWindow window;
    window.questions.answer(u"Close"_s);
    action(window, u"About"_s)->trigger();
    QVERIFY(window.questions.isDone());
    const Question &about = window.questions.asked().constFirst();
    QVERIFY(about.text.contains(u"7.8.9"_s));
    QVERIFY(about.details.contains(window.path()));
}

void MainMenusTest::windowAndAboutHaveTheIcon()
{
    HostWindow window;
    window.questions.answer(u"Close"_s);
    action(window, u"About"_s)->trigger();
    for (const QIcon &icon : {window.window().windowIcon(), QApplication::windowIcon(),
                              window.questions.asked().constFirst().picture}) {
        const QImage picture = icon.pixmap(128, 128).toImage();
        QCOMPARE(picture.pixelColor(40, 100), QColor(0x39, 0xb5, 0x4a)); // the charge of the battery
    }
}

void MainMenusTest::aRenamedModelStaysTheChosenOne_data()
{
    QTest::addColumn<bool>("inTab");
    QTest::newRow("from the menu") << false;
    QTest::newRow("from the tab of the flights") << true;
}

void MainMenusTest::aRenamedModelStaysTheChosenOne()
{
    QFETCH(bool, inTab);
    HostWindow window;
    const QWidget &flights = Panel::open(window, SidePanel::Flights);
    window.chooseModel(u"Skylark"_s);
    QTimer::singleShot(0, &window.window(), [&] {
        auto *dialog = window.window().findChild<RenameDialog *>();
        const auto boxes = dialog->findChildren<QComboBox *>();
        boxes.at(0)->setCurrentIndex(1); // a model
        boxes.at(1)->setCurrentText(u"Skylark"_s);
        dialog->findChild<QLineEdit *>()->setText(u"Lark"_s);
        dialog->accept();
    });
    if (inTab)
        LogbookWindow::click(Panel::button(flights, u"Rename…"_s));
    else
        action(window, u"Rename"_s)->trigger();
    QCOMPARE(window.ui().cb_select_model->currentText(), u"Lark"_s);
    window.clickCard(u"Pack A"_s);
    window.settle();
    QCOMPARE(window.bytes().count("<LogData"), 1); // the cards were placed once
    QVERIFY(window.questions.told().isEmpty());
}

void MainMenusTest::quitClosesTheWindow()
{
    HostWindow window;
    press(window, QKeySequence(Qt::CTRL | Qt::Key_Q));
    QVERIFY(!window.window().isVisible());
}

QTEST_MAIN(MainMenusTest)
#include "tst_mainmenus.moc"
