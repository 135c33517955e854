// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader is told of the program around the logbook, and what the keyboard reaches.
#include "host/window/flightdialog.h"
#include "host/window/flighteditdialog.h"
#include "host/window/importdialog.h"
#include "host/window/manualwindow.h"
#include "host/window/movedialog.h"
#include "host/window/preferencesdialog.h"
#include "host/window/renamedialog.h"
#include "host/window/tidydialog.h"
#include "tests/host/support/flown.h"
#include "tests/host/support/panel.h"

#include <QAccessible>
#include <QMenuBar>
#include <QScrollArea>
#include <QThread>

#include <functional>
#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

using MakeWindow = std::function<QWidget *(HostWindow &)>;

QString nameOf(const QAccessibleInterface *item)
{
    const auto labels = item->relations(QAccessible::Label);
    const QString label = labels.isEmpty() ? QString() : labels.constFirst().first->text(QAccessible::Name);
    return item->text(QAccessible::Name) + label;
}

/** Everything below that can have the focus and is on show; the cells of tables belong to these. */
void collect(QAccessibleInterface *item, QList<QAccessibleInterface *> &found)
{
    if (!item || item->state().invisible)
        return;
    if (item->state().focusable)
        found.append(item);
    if (item->role() == QAccessible::Table || item->role() == QAccessible::List)
        return;
    for (int child = 0; child < item->childCount(); ++child)
        collect(item->child(child), found);
}

bool isInput(const QAccessibleInterface *item)
{
    return QList{QAccessible::EditableText, QAccessible::SpinBox, QAccessible::ComboBox}.contains(
        item->role());
}

QString kindOf(const QAccessibleInterface *item)
{
    const QObject *object = item->object();
    return object ? QString::fromLatin1(object->metaObject()->className()) + u' ' + object->objectName()
                  : QString::number(item->role());
}

/** A flight that stands twice. */
QList<Edits::Double> doubles()
{
    return {{{0, 0}, {0, 1}}};
}

} // namespace

Q_DECLARE_METATYPE(MakeWindow)

class PanelAccessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatTakesTheFocusHasAName_data() { addWindows(); }
    void whatTakesTheFocusHasAName();
    void everyInputTellsWhatItIs_data() { addWindows(); }
    void everyInputTellsWhatItIs();
    void numbersTellTheirUnit_data() { addWindows(); }
    void numbersTellTheirUnit();
    void tabReachesEverythingOnce_data() { addWindows(); }
    void tabReachesEverythingOnce();
    void noTwoThingsHaveOneLetter_data() { addWindows(); }
    void noTwoThingsHaveOneLetter();
    void everyTabOfANewLogbookSaysWhatToDoFirst_data();
    void everyTabOfANewLogbookSaysWhatToDoFirst();

private:
    static void addWindows();
    static QList<QAccessibleInterface *> focusable(QWidget &window);

    std::unique_ptr<HostWindow> m_window;
    std::unique_ptr<QWidget> m_dialog;
    QWidget &shown();

private Q_SLOTS:
    void cleanup()
    {
        m_dialog.reset();
        m_window.reset();
    }
};

void PanelAccessTest::addWindows()
{
    QTest::addColumn<MakeWindow>("make");
    const auto tab = [](SidePanel::Tab number) {
        return MakeWindow([number](HostWindow &window) {
            Panel::open(window, number);
            return nullptr;
        });
    };
    QTest::newRow("Today") << tab(SidePanel::Today);
    QTest::newRow("Batteries") << tab(SidePanel::Batteries);
    QTest::newRow("Flights") << tab(SidePanel::Flights);
    QTest::newRow("Statistics") << tab(SidePanel::Statistics);
    QTest::newRow("preferences") << MakeWindow([](HostWindow &) { return new PreferencesDialog; });
    QTest::newRow("rename") << MakeWindow([](HostWindow &window) {
        return new RenameDialog(window.logbook().catalogue(), window.logbook(), window.questions);
    });
    QTest::newRow("move") << MakeWindow([](HostWindow &window) {
        return new MoveDialog(*window.logbook().catalogue(), {{0, 0}, {1, 0}});
    });
    QTest::newRow("tidy up") << MakeWindow(
        [](HostWindow &window) { return new TidyDialog(*window.logbook().catalogue(), doubles()); });
    QTest::newRow("add a flight") << MakeWindow([](HostWindow &window) {
        return new FlightDialog(window.logbook().catalogue(), window.logbook(), window.questions);
    });
    QTest::newRow("edit a flight") << MakeWindow([](HostWindow &window) {
        FlightsModel flights;
        flights.setCatalogue(window.logbook().catalogue());
        return new FlightEditDialog(flights, {0, 0}, window.logbook(), window.questions);
    });
    QTest::newRow("import") << MakeWindow([](HostWindow &window) {
        const QString logs = window.place() + u"/logs"_s;
        QDir().mkdir(logs);
        const QByteArray log = "Date,Time,Curr(A),Capa(mAh)\n2026-05-04,10:00:00.000,20,0\n"
                               "2026-05-04,10:00:30.000,20,170\n";
        if (!Test::write(logs + u"/table.csv"_s, "a,b\n1,2\n") ||
            !Test::write(logs + u"/Kestrel-2026-05-04-100000.csv"_s, log))
            qFatal("The logs are not written.");
        auto *dialog = new ImportDialog(window.logbook(), window.questions);
        dialog->add({logs});
        if (!QTest::qWaitFor([dialog] { return !dialog->m_thread; }))
            qFatal("The logs are not read.");
        return dialog;
    });
    QTest::newRow("manual") << MakeWindow([](HostWindow &window) -> QWidget * {
        ManualWindow::showBeside(&window.window());
        auto *manual = window.window().findChild<ManualWindow *>();
        manual->setAttribute(Qt::WA_DeleteOnClose, false);
        return manual;
    });
}

/** The dialog of this row, or the program's window with a tab. */
QWidget &PanelAccessTest::shown()
{
    QFETCH(MakeWindow, make);
    m_window = std::make_unique<HostWindow>(Flown::logbook());
    m_dialog.reset(make(*m_window));
    QWidget &shown = m_dialog ? *m_dialog : m_window->window();
    shown.show();
    shown.activateWindow();
    QCoreApplication::processEvents();
    return shown;
}

QList<QAccessibleInterface *> PanelAccessTest::focusable(QWidget &window)
{
    QList<QAccessibleInterface *> found;
    collect(QAccessible::queryAccessibleInterface(&window), found);
    return found;
}

void PanelAccessTest::whatTakesTheFocusHasAName()
{
    const auto all = focusable(shown());
    QVERIFY(!all.isEmpty());
    QStringList nameless;
    for (const QAccessibleInterface *item : all) {
        if (nameOf(item).isEmpty())
            nameless.append(kindOf(item));
    }
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(u'\n')));
}

void PanelAccessTest::everyInputTellsWhatItIs()
{
    const auto all = focusable(shown());
    QStringList silent;
    for (QAccessibleInterface *item : all) {
        // The name of a chooser without one of its own is its value.
        auto *widget = qobject_cast<QWidget *>(item->object());
        const auto labels = item->relations(QAccessible::Label);
        if (isInput(item) && labels.isEmpty() && widget && widget->accessibleName().isEmpty() &&
            item->text(QAccessible::Description).isEmpty())
            silent.append(kindOf(item));
    }
    QVERIFY2(silent.isEmpty(), qPrintable(silent.join(u'\n')));
}

void PanelAccessTest::numbersTellTheirUnit()
{
    QWidget &window = shown();
    QStringList bare;
    const auto boxes = window.findChildren<QAbstractSpinBox *>();
    for (QAbstractSpinBox *box : boxes) {
        if (!box->isVisible() || box->inherits("QDateTimeEdit"))
            continue;
        const QString suffix = box->property("suffix").toString();
        QVERIFY2(!suffix.isEmpty(), qPrintable(box->accessibleName()));
        if (!box->text().endsWith(suffix))
            bare.append(box->accessibleName());
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(box);
        if (!face->text(QAccessible::Value).endsWith(suffix) &&
            !face->text(QAccessible::Description).contains(suffix.trimmed()))
            bare.append(box->accessibleName());
    }
    QVERIFY2(bare.isEmpty(), qPrintable(bare.join(u'\n')));
}

void PanelAccessTest::tabReachesEverythingOnce()
{
    QWidget &window = shown();
    QList<QWidget *> wanted;
    const auto all = window.findChildren<QWidget *>();
    for (QWidget *widget : all) {
        const bool takes = widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
                           widget->focusPolicy() & Qt::TabFocus && widget->window() == &window;
        if (takes && !widget->inherits("QLineEdit")) // those of spin boxes belong to these
            wanted.append(widget);
    }
    if (wanted.isEmpty()) { // the manual is one text
        QVERIFY(window.focusPolicy() & Qt::TabFocus);
        return;
    }
    const QList<QWidget *> reached = Panel::reachedByTab(wanted.constFirst());
    QStringList missed;
    for (QWidget *widget : std::as_const(wanted)) {
        if (widget != wanted.constFirst() && !reached.contains(widget))
            missed.append(QString::fromLatin1(widget->metaObject()->className()) + u' ' +
                          widget->objectName() + widget->accessibleName());
    }
    QVERIFY2(missed.isEmpty(), qPrintable(missed.join(u'\n')));
}

void PanelAccessTest::noTwoThingsHaveOneLetter()
{
    QWidget &window = shown();
    QStringList letters;
    const auto add = [&letters](const QString &text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            letters.append(key.toString() + u' ' + text);
    };
    if (!m_dialog) {
        const auto menus = m_window->window().menuBar()->actions();
        for (const QAction *menu : menus)
            add(menu->text());
    }
    const QWidget &area = m_dialog ? window : *m_window->window().findChild<SidePanel *>();
    const auto widgets = area.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        if (widget->isVisible() && label && label->buddy())
            add(label->text());
        else if (widget->isVisible() && button)
            add(button->text());
    }
    letters.sort();
    for (qsizetype i = 1; i < letters.size(); ++i)
        QVERIFY2(letters.at(i).section(u' ', 0, 0) != letters.at(i - 1).section(u' ', 0, 0),
                 qPrintable(letters.at(i - 1) + u" and "_s + letters.at(i)));
}

void PanelAccessTest::everyTabOfANewLogbookSaysWhatToDoFirst_data()
{
    QTest::addColumn<int>("tab");
    for (int tab = 0; tab < SidePanel::tabNames().size(); ++tab)
        QTest::newRow(qPrintable(SidePanel::tabNames().at(tab))) << tab;
}

void PanelAccessTest::everyTabOfANewLogbookSaysWhatToDoFirst()
{
    QFETCH(int, tab);
    HostWindow window{QByteArray()};
    const QString said = Panel::said(Panel::open(window, static_cast<SidePanel::Tab>(tab)));
    QVERIFY2(said.contains(u"press the menu button, then Edit"_s), qPrintable(said));
}

QTEST_MAIN(PanelAccessTest)
#include "tst_panelaccess.moc"
