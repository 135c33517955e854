// SPDX-License-Identifier: GPL-3.0-or-later
// The window in other languages: that nothing stays English, that it can be read, and that another choice is
// followed on the spot.
#include "host/window/filterbar.h"
#include "host/window/flightstab.h"
#include "host/window/manualwindow.h"
#include "host/window/statisticstab.h"
#include "tests/host/support/pseudolanguage.h"
#include "tests/host/support/showntexts.h"
#include "tests/host/support/spokenwindow.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTableView>

#include <algorithm>
#include <iostream>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

/** The names of the languages, each in itself. */
bool isLanguage(const QString &text)
{
    const QStringList languages = Languages::all();
    return std::any_of(languages.cbegin(), languages.cend(),
                       [&text](const QString &language) { return Languages::nameOf(language) == text; });
}

QStringList english(const QList<std::pair<QString, QString>> &texts)
{
    QStringList found;
    for (const auto &[where, text] : texts) {
        // The preview of an export shows the names of files and columns, which are the same everywhere.
        if (where.startsWith(u"QTableWidget") || (where.startsWith(u"QTabBar") && text.contains(u" (")))
            continue;
        if (!isLanguage(text) && !PseudoLanguage::leftOver(text).isEmpty() &&
            !found.contains(where + u": "_s + text))
            found.append(where + u": "_s + text);
    }
    return found;
}

/** Uses everything that opens a dialog or asks something: the menus, and the buttons of the flights. */
void useEverything(SpokenWindow &window)
{
    const QList<QMenu *> menus = window.window->menuBar()->findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        Q_EMIT menu->aboutToShow();
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            const bool ends = action->menuRole() == QAction::QuitRole;
            if (!ends && !action->menu() && !action->isCheckable() && action->isEnabled() &&
                action->shortcut() != QKeySequence(Qt::Key_F1))
                action->trigger();
        }
    }
    window.show(u"flights"_s);
    auto *flights = window.panel->currentWidget();
    auto *table = flights->findChild<QTableView *>();
    QList<QAction *> given;
    const auto giveCommands = [&] {
        window.settle();
        const QList<QAction *> commands = flights->findChildren<QAction *>();
        for (QAction *command : commands) {
            if (command->parent() != flights || !command->isEnabled() || given.contains(command))
                continue;
            given.append(command);
            command->trigger();
        }
    };
    table->selectAll();
    giveCommands();
    table->selectRow(0); // there are commands for exactly one
    giveCommands();
    for (const QString &tab : {u"batteries"_s, u"statistics"_s}) {
        window.show(tab);
        const QList<QPushButton *> buttons = window.panel->currentWidget()->findChildren<QPushButton *>();
        for (QPushButton *button : buttons)
            button->click();
    }
}

} // namespace

class LanguagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_pseudo = std::make_unique<PseudoLanguage>(QStringLiteral(TRANSLATION)); }
    void cleanupTestCase() { m_pseudo.reset(); }
    void languagesThatAreCompiledInAreThere();
    void theSystemsLanguageIsSpokenUntilAnotherIsChosen();
    void qtsOwnTextsAreTranslated();
    void theManualFollowsTheLanguage();
    void theMenuNamesAndKeepsTheLanguage();
    void noTextOfTheWindowStaysEnglish_data();
    void noTextOfTheWindowStaysEnglish();
    void noTextOfADialogStaysEnglish();
    void anotherLanguageAndBackIsAsBefore();
    void whatWasEnteredOutlivesTheSwitch();
    void everyPageCanBeRead_data() { addLanguages(); }
    void everyPageCanBeRead();
    void everyDialogCanBeRead_data() { addLanguages(); }
    void everyDialogCanBeRead();
    void noMnemonicOfAMenuStandsTwice_data() { addLanguages(); }
    void noMnemonicOfAMenuStandsTwice();

private:
    static void addLanguages();

    std::unique_ptr<PseudoLanguage> m_pseudo;
};

void LanguagesTest::addLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = QStringLiteral(LANGUAGES).split(u' ') + QStringList{PseudoLanguage::Code};
    for (const QString &language : languages)
        QTest::addRow("%s", qPrintable(language)) << language;
}

void LanguagesTest::languagesThatAreCompiledInAreThere()
{
    QStringList expected = QStringLiteral(LANGUAGES).split(u' ') + QStringList{PseudoLanguage::Code};
    expected.sort();
    QCOMPARE(Languages::all(), expected);
    QCOMPARE(Languages::nameOf(u"en"_s), u"English"_s);
    QCOMPARE(Languages::nameOf(PseudoLanguage::Code), PseudoLanguage::said(u"English"_s));
}

void LanguagesTest::theSystemsLanguageIsSpokenUntilAnotherIsChosen()
{
    const auto spokenWith = [](const QByteArray &wishes) {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        if (!wishes.isEmpty()) {
            environment.insert(u"LC_ALL"_s, u"en_US.UTF-8"_s);
            environment.insert(u"LANGUAGE"_s, QString::fromLatin1(wishes));
        }
        program.setProcessEnvironment(environment);
        program.start(QCoreApplication::applicationFilePath(), {u"--system-language"_s});
        program.waitForFinished();
        return QString::fromLatin1(program.readAllStandardOutput()).trimmed();
    };
    QCOMPARE(spokenWith({}), u"en"_s);
    QCOMPARE(spokenWith("tlh:sv_SE:en"), u"sv"_s); // the first wish that can be met
    QCOMPARE(spokenWith("en:sv"), u"en"_s);
    QCOMPARE(spokenWith("tlh"), u"en"_s);
    QCOMPARE(spokenWith("sv"), u"sv"_s);

    SpokenWindow window(PseudoLanguage::Code);
    QCOMPARE(window.languages.spoken(), PseudoLanguage::Code);
    window.choose({});
    QCOMPARE(window.languages.spoken(), u"en"_s);
    Settings().setLanguage(u"tlh"_s); // it was there once
    window.languages.speakChosen();
    QCOMPARE(window.languages.spoken(), u"en"_s);
}

void LanguagesTest::qtsOwnTextsAreTranslated()
{
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    Languages languages;
    languages.speak(u"de"_s);
    QCOMPARE(cancel(), u"Abbrechen"_s);
    languages.speak(u"en"_s);
    QCOMPARE(cancel(), u"Cancel"_s);
}

void LanguagesTest::theManualFollowsTheLanguage()
{
    SpokenWindow window(u"en"_s);
    const auto manual = [&] { return window.window->findChild<ManualWindow *>(); };
    QTest::keyClick(window.window.get(), Qt::Key_F1);
    QVERIFY(manual());
    const QString english = manual()->toPlainText();
    QVERIFY(english.contains(u"Voltbok: the manual"_s));
    window.choose(PseudoLanguage::Code);
    QCOMPARE(manual()->toPlainText(), u"Mánúál"_s);
    QCOMPARE(manual()->windowTitle(), PseudoLanguage::said(u"Voltbok Manual"_s));
    manual()->close();
    window.settle();
    QVERIFY(!manual());
    window.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.window.get()));
    QTest::keyClick(window.window.get(), Qt::Key_F1);
    QCOMPARE(manual()->toPlainText(), u"Mánúál"_s);
    window.choose(u"en"_s); // for which there is none of its own
    QCOMPARE(manual()->toPlainText(), english);
}

void LanguagesTest::theMenuNamesAndKeepsTheLanguage()
{
    SpokenWindow window({});
    const auto languageMenu = [&] {
        const QList<QMenu *> menus = window.window->menuBar()->findChildren<QMenu *>();
        for (QMenu *menu : menus) {
            if (PseudoLanguage::said(u"&Language"_s) == menu->title() || menu->title() == u"&Language"_s)
                return menu;
        }
        return static_cast<QMenu *>(nullptr);
    };
    const auto checked = [&] {
        QStringList names;
        const QList<QAction *> actions = languageMenu()->actions();
        for (const QAction *action : actions) {
            if (action->isChecked())
                names.append(action->text());
        }
        return names;
    };
    QCOMPARE(checked(), QStringList(u"&System Language"_s));
    const QString name = Languages::nameOf(PseudoLanguage::Code);
    const QList<QAction *> actions = languageMenu()->actions();
    for (QAction *action : actions) {
        if (action->text() == name)
            action->trigger();
    }
    window.settle();
    QCOMPARE(checked(), QStringList(name));
    QCOMPARE(Settings().language(), PseudoLanguage::Code);
    QCOMPARE(window.window->menuBar()->actions().constFirst()->text(), PseudoLanguage::said(u"&Logbook"_s));
}

void LanguagesTest::noTextOfTheWindowStaysEnglish_data()
{
    QTest::addColumn<QByteArray>("logbook");
    QTest::newRow("with everything") << SpokenWindow::logbook();
    QTest::newRow("empty") << Test::document({});
}

void LanguagesTest::noTextOfTheWindowStaysEnglish()
{
    QFETCH(const QByteArray, logbook);
    SpokenWindow window(u"en"_s, logbook);
    const PseudoQt qt;
    window.choose(PseudoLanguage::Code);
    QStringList found;
    const QStringList pages = MainWindow::pageNames();
    for (const QString &page : pages) {
        window.show(page);
        found += english(ShownTexts(*window.window).all());
    }
    found.removeDuplicates();
    QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
}

void LanguagesTest::noTextOfADialogStaysEnglish()
{
    SpokenWindow window(u"en"_s);
    const PseudoQt qt;
    window.choose(PseudoLanguage::Code);
    window.user.texts.clear();
    QStringList found;
    const DialogReader reader([&](QWidget &dialog) { found += english(ShownTexts(dialog).all()); });
    useEverything(window);
    for (const QString &text : std::as_const(window.user.texts))
        found += english({{u"question"_s, text}});
    QVERIFY(reader.count >= 7);
    QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
}

void LanguagesTest::anotherLanguageAndBackIsAsBefore()
{
    SpokenWindow window(u"en"_s);
    const auto texts = [&] {
        QStringList all;
        const QStringList pages = MainWindow::pageNames();
        for (const QString &page : pages) {
            window.show(page);
            const ShownTexts shown(*window.window);
            for (const auto &[where, text] : shown.all())
                all.append(page + u' ' + where + u": "_s + text);
        }
        all.sort();
        return all;
    };
    texts(); // every tab has been on show: until then it is as before
    const QStringList before = texts();
    QVERIFY(before.size() > 100);
    window.choose(PseudoLanguage::Code);
    QVERIFY(texts() != before);
    window.choose(u"en"_s);
    texts();
    const QStringList after = texts();
    QStringList changed;
    for (const QString &text : after) {
        if (!before.contains(text))
            changed.append(u"now: "_s + text);
    }
    for (const QString &text : before) {
        if (!after.contains(text))
            changed.append(u"no more: "_s + text);
    }
    QVERIFY2(changed.isEmpty(), qPrintable(changed.join(u'\n')));
}

void LanguagesTest::whatWasEnteredOutlivesTheSwitch()
{
    SpokenWindow window(u"en"_s);
    window.show(u"flights"_s);
    window.show(u"add-battery"_s);
    auto *name = window.window->findChild<QLineEdit *>(u"ledt_name"_s);
    auto *capacity = window.window->findChild<QLineEdit *>(u"ledt_capacity"_s);
    auto *filter = window.panel->findChild<FilterBar *>();
    auto *search = filter->findChild<QLineEdit *>();
    auto *statistics = window.panel->findChild<StatisticsTab *>();
    QVERIFY(name && capacity && search);
    name->setText(u"Ω"_s);
    capacity->setText(u"3300"_s);
    search->setText(u"Ζ"_s);
    filter->findChild<QComboBox *>()->setCurrentIndex(1);
    filter->findChild<QCheckBox *>()->setChecked(true);
    auto *grouping = statistics->findChild<QComboBox *>();
    grouping->setCurrentIndex(2);
    const FlightFilter before = filter->filter();
    const int tab = window.panel->currentIndex();

    for (const QString &language : {QString(PseudoLanguage::Code), u"en"_s}) {
        window.choose(language);
        QCOMPARE(name->text(), u"Ω"_s);
        QCOMPARE(capacity->text(), u"3300"_s);
        QVERIFY(filter->filter() == before);
        QCOMPARE(grouping->currentIndex(), 2);
        QCOMPARE(window.panel->currentIndex(), tab);
    }
}

void LanguagesTest::everyPageCanBeRead()
{
    QFETCH(const QString, language);
    SpokenWindow window(language);
    window.window->resize(window.window->sizeHint());
    QStringList clipped;
    const QStringList pages = MainWindow::pageNames();
    for (const QString &page : pages) {
        window.show(page);
        for (const QString &text : ClippedTexts::in(*window.window))
            clipped.append(page + u": "_s + text);
    }
    QVERIFY2(clipped.isEmpty(), qPrintable(clipped.join(u'\n')));
}

void LanguagesTest::everyDialogCanBeRead()
{
    QFETCH(const QString, language);
    SpokenWindow window(language);
    QStringList clipped;
    const DialogReader reader([&](QWidget &dialog) { clipped += ClippedTexts::in(dialog); });
    useEverything(window);
    QVERIFY(reader.count >= 7);
    QVERIFY2(clipped.isEmpty(), qPrintable(clipped.join(u'\n')));
}

void LanguagesTest::noMnemonicOfAMenuStandsTwice()
{
    QFETCH(const QString, language);
    SpokenWindow window(language);
    QList<QWidget *> bars{window.window->menuBar()};
    const QList<QMenu *> menus = window.window->menuBar()->findChildren<QMenu *>();
    bars += QList<QWidget *>(menus.cbegin(), menus.cend());
    for (const QWidget *bar : std::as_const(bars)) {
        QStringList seen;
        const QList<QAction *> actions = bar->actions();
        for (const QAction *action : actions) {
            const auto place = action->text().indexOf(u'&');
            const QString mnemonic = place < 0 ? QString() : action->text().mid(place + 1, 1).toLower();
            QVERIFY2(mnemonic.isEmpty() || !seen.contains(mnemonic), qPrintable(action->text()));
            seen.append(mnemonic);
        }
    }
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    if (QApplication::arguments().contains(u"--system-language"_s)) {
        const PseudoLanguage pseudo(QStringLiteral(TRANSLATION));
        std::cout << qPrintable(Languages::ofSystem()) << std::endl;
        return 0;
    }
    LanguagesTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_languages.moc"
