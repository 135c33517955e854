// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader is told of the window: who cannot see the pages learns what everything is.
#include "tests/support/datafile.h"
#include "tests/support/logbookwindow.h"

#include <QAccessible>
#include <QChartView>
#include <QLabel>
#include <QTranslator>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray sampleLogbook()
{
    QFile file(QStringLiteral(SAMPLE));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Turns every text into the same text in angle brackets. */
class BracketTranslator : public QTranslator
{
public:
    BracketTranslator() { QCoreApplication::installTranslator(this); }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return u'<' + QString::fromUtf8(text) + u'>';
    }
    bool isEmpty() const override { return false; }
};

QAccessibleInterface *interfaceOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

QString nameOf(QWidget *widget)
{
    return interfaceOf(widget)->text(QAccessible::Name);
}

/** The label that a screen reader reads with a field or a figure; empty without one. */
QString labelOf(const QAccessibleInterface *item)
{
    const auto labels = item->relations(QAccessible::Label);
    return labels.isEmpty() ? QString() : labels.constFirst().first->text(QAccessible::Name);
}

/** All that is announced of an input before its value. */
QString announcement(QAccessibleInterface *item)
{
    QStringList parts{labelOf(item), item->text(QAccessible::Description)};
    if (item->role() != QAccessible::ComboBox) // its name is its value
        parts.append(item->text(QAccessible::Name));
    return parts.join(u' ').trimmed();
}

void collect(QAccessibleInterface *item, QList<QAccessibleInterface *> &found)
{
    if (!item || item->state().invisible)
        return;
    if (item->state().focusable)
        found.append(item);
    for (int child = 0; child < item->childCount(); ++child)
        collect(item->child(child), found);
}

/** What the focus can go to on the page on show, header buttons included. */
QList<QAccessibleInterface *> focusable(LogbookWindow &window)
{
    QList<QAccessibleInterface *> found;
    collect(interfaceOf(&window.gui()), found);
    return found;
}

bool isInput(const QAccessibleInterface *item)
{
    return QList{QAccessible::EditableText, QAccessible::SpinBox, QAccessible::ComboBox}.contains(
        item->role());
}

QString placeOf(const QAccessibleInterface *item)
{
    return item->object() ? item->object()->objectName() : QString();
}

void showPage(LogbookWindow &window, int index)
{
    window->on_pb_chart_clicked();
    window->on_pb_logbook_clicked();
    window.ui().stackedWidget->setCurrentIndex(index);
    QCoreApplication::processEvents();
}

void addPages()
{
    QTest::addColumn<int>("page");
    for (int page = 0; page < 15; ++page)
        QTest::addRow("page %d", page) << page;
}

} // namespace

class AccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatTakesTheFocusHasAName_data() { addPages(); }
    void whatTakesTheFocusHasAName();
    void namesOnAPageDiffer_data() { addPages(); }
    void namesOnAPageDiffer();
    void everyInputTellsWhatItIs_data() { addPages(); }
    void everyInputTellsWhatItIs();
    void anInputTellsItsUnit_data();
    void anInputTellsItsUnit();
    void aFigureHasTheLabelThatStandsByIt_data();
    void aFigureHasTheLabelThatStandsByIt();
    void theFiguresOfACardHaveTheirLabels();
    void theButtonOfACardNamesItsBatteryAndItsState();
    void theButtonOfACardFollowsTheLanguage();
    void theChartTellsItsBatteryAndQuantity();
    void tabPassesTheChartBy();
    void allNamesAndTipsAreTranslated();
    void buttonsWithoutWordsHaveATooltip();
    void deadButtonsOfAnEmptyLogbookTellWhy();
    void theNotesOfAFlightHaveAPlaceholder();
};

void AccessibilityTest::whatTakesTheFocusHasAName()
{
    QFETCH(int, page);
    LogbookWindow window;
    window.load(sampleLogbook());
    showPage(window, page);
    const auto all = focusable(window);
    QVERIFY(all.size() > 2);
    for (const QAccessibleInterface *item : all)
        QVERIFY2(!item->text(QAccessible::Name).isEmpty(), qPrintable(placeOf(item)));
}

void AccessibilityTest::namesOnAPageDiffer()
{
    QFETCH(int, page);
    LogbookWindow window;
    window.load(sampleLogbook());
    showPage(window, page);
    QSet<QString> names;
    const auto all = focusable(window);
    for (const QAccessibleInterface *item : all) {
        const QString name = item->text(QAccessible::Name);
        QVERIFY2(!names.contains(name), qPrintable(name));
        names.insert(name);
    }
}

void AccessibilityTest::everyInputTellsWhatItIs()
{
    QFETCH(int, page);
    LogbookWindow window;
    window.load(sampleLogbook());
    showPage(window, page);
    const auto all = focusable(window);
    for (QAccessibleInterface *item : all) {
        if (isInput(item))
            QVERIFY2(!announcement(item).isEmpty(), qPrintable(placeOf(item)));
    }
}

void AccessibilityTest::anInputTellsItsUnit_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("unit");
    const std::pair<const char *, const char *> fields[] = {
        {"ledt_capacity", "mAh"},
        {"ledt_modifyBattery_capacity", "mAh"},
        {"ledt_dischargeRate", "(C)"},
        {"ledt_modifyBattery_dischargeRate", "(C)"},
        {"ledt_chargeRate", "(C)"},
        {"ledt_modifyBattery_chargeRate", "(C)"},
        {"ledt_purchaseDate", "Y/M/D"},
        {"ledt_modifyBattery_purchaseDate", "Y/M/D"},
        {"ledt_addheli_purchase", "Y/M/D"},
        {"ledt_modifyheli_purchase", "Y/M/D"},
        {"ledt_addheli_weight", "unit"},
        {"ledt_modifyheli_weight", "unit"},
        {"ledt_addheli_size", "unit"},
        {"ledt_modifyheli_size", "unit"},
        {"dedt_dischargeDate", "year-month-day"},
        {"tedt_dischargeTime", "hours:minutes:seconds"},
        {"sb_discharged_capacity", "mAh"},
        {"dsb_discharged_current", "(A)"},
        {"sb_log_duration", "hours:minutes:seconds"},
        {"sb_log_temp", "°C"},
    };
    for (const auto &[field, unit] : fields)
        QTest::addRow("%s", field) << QString::fromUtf8(field) << QString::fromUtf8(unit);
}

void AccessibilityTest::anInputTellsItsUnit()
{
    QFETCH(QString, field);
    QFETCH(QString, unit);
    LogbookWindow window;
    auto *input = window->findChild<QWidget *>(field);
    QVERIFY(input);
    const QString told = announcement(interfaceOf(input));
    QVERIFY2(told.contains(unit), qPrintable(told));
}

void AccessibilityTest::aFigureHasTheLabelThatStandsByIt_data()
{
    QTest::addColumn<QString>("figure");
    QTest::addColumn<QString>("label");
    const std::pair<const char *, const char *> figures[] = {
        {"lbl_logview_date", "Date"},
        {"lbl_logview_time", "Time"},
        {"lbl_logview_location", "Location"},
        {"lbl_logview_duration", "Duration"},
        {"lbl_logview_temp", "Ambient temp"},
        {"lbl_logview_battname", "Battery"},
        {"lbl_logview_capacity", "Capacity (mAh)"},
        {"lbl_logview_current", "Maximum current (A)"},
    };
    for (const auto &[figure, label] : figures)
        QTest::addRow("%s", figure) << QString::fromUtf8(figure) << QString::fromUtf8(label);
}

void AccessibilityTest::aFigureHasTheLabelThatStandsByIt()
{
    QFETCH(QString, figure);
    LogbookWindow window;
    QTEST(labelOf(interfaceOf(window->findChild<QLabel *>(figure))), "label");
}

void AccessibilityTest::theFiguresOfACardHaveTheirLabels()
{
    BatteryWidget card;
    const auto label = [&card](const QString &figure) {
        return labelOf(interfaceOf(card.findChild<QLabel *>(figure)));
    };
    QCOMPARE(label(u"lbl_dateTime"_s), u"Last use:"_s);
    QCOMPARE(label(u"lbl_cycles"_s), u"Cycles:"_s);
    QCOMPARE(label(u"lbl_discharged"_s), u"Discharged:"_s);
    QCOMPARE(label(u"lbl_maxCurrent"_s), u"Max. Current:"_s);
}

void AccessibilityTest::theButtonOfACardNamesItsBatteryAndItsState()
{
    BatteryWidget card;
    auto *button = card.findChild<QPushButton *>();
    QString name = u"6S 3700 No. 2"_s;
    card.setBatteryName(name);
    card.setBatteryCharged(false, false);
    QCOMPARE(nameOf(button), u"6S 3700 No. 2: discharged; press when charged"_s);
    card.setBatteryCharged(true, false);
    QCOMPARE(nameOf(button), u"6S 3700 No. 2: charged; press when discharged"_s);
    name = u"%1 & <b>"_s;
    card.setBatteryName(name);
    QCOMPARE(nameOf(button), u"%1 & <b>: charged; press when discharged"_s);
}

void AccessibilityTest::theButtonOfACardFollowsTheLanguage()
{
    BatteryWidget card;
    QString name = u"Pack A"_s;
    card.setBatteryName(name);
    card.setBatteryCharged(true, false);
    const BracketTranslator language;
    QCoreApplication::processEvents();
    QCOMPARE(nameOf(card.findChild<QPushButton *>()), u"<Pack A: charged; press when discharged>"_s);
}

void AccessibilityTest::theChartTellsItsBatteryAndQuantity()
{
    LogbookWindow window;
    window.load(Test::document({{{u"Pack A"_s}, {u"Pack B"_s}}}));
    window->on_pb_chart_clicked();
    QCOMPARE(nameOf(window->chartView), u"Chart of Pack A in mAh"_s);
    window.choose(window.ui().cb_batteryData, u"Pack B"_s);
    window.click(window.ui().rb_showAmps);
    QCOMPARE(nameOf(window->chartView), u"Chart of Pack B in A"_s);
}

void AccessibilityTest::tabPassesTheChartBy()
{
    LogbookWindow window;
    window.load(Test::document({{{u"Pack A"_s}}}));
    window->on_pb_chart_clicked();
    window.ui().pb_options->setFocus();
    for (int step = 0; step < 8; ++step) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        QVERIFY(window->focusWidget() != window->chartView);
    }
}

void AccessibilityTest::allNamesAndTipsAreTranslated()
{
    LogbookWindow window;
    const BracketTranslator language;
    QCoreApplication::processEvents();
    int told = 0;
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        for (const QString &text : {widget->accessibleName(), widget->toolTip()}) {
            QVERIFY2(text.isEmpty() || text.startsWith(u'<'), qPrintable(text));
            told += text.isEmpty() ? 0 : 1;
        }
    }
    QVERIFY(told > 50);
    QCOMPARE(window.ui().ptext_log_notes->placeholderText(), u"<Notes>"_s);
}

void AccessibilityTest::buttonsWithoutWordsHaveATooltip()
{
    LogbookWindow window;
    Ui_VoltbokGui &ui = window.ui();
    QCOMPARE(ui.pb_options->toolTip(), u"Menu"_s);
    QCOMPARE(ui.pb_home->toolTip(), u"Home"_s);
    QCOMPARE(ui.pb_logview_prev->toolTip(), u"Earlier flight"_s);
    QCOMPARE(ui.pb_logview_next->toolTip(), u"Later flight"_s);
    QCOMPARE(ui.cb_model_choose_bat->toolTip(), u"Model to which batteries are assigned"_s);
    QCOMPARE(ui.sb_log_duration->toolTip(), u"Hours:minutes:seconds"_s);
}

void AccessibilityTest::deadButtonsOfAnEmptyLogbookTellWhy()
{
    LogbookWindow window;
    Ui_VoltbokGui &ui = window.ui();
    for (const QPushButton *button :
         {ui.pb_add_batt_to_model, ui.pb_rem_batt_from_model, ui.pb_choose_modify_battery,
          ui.pb_choose_modify_model, ui.pb_deleteConfirm, ui.pb_deleteConfirm_model, ui.pb_del_location}) {
        QVERIFY(button->isEnabled());
        QVERIFY2(button->toolTip().contains(u"does nothing"_s), qPrintable(button->objectName()));
    }
}

void AccessibilityTest::theNotesOfAFlightHaveAPlaceholder()
{
    LogbookWindow window;
    QCOMPARE(window.ui().ptext_log_notes->placeholderText(), u"Notes"_s);
    QVERIFY(window.ui().ptext_log_notes->toPlainText().isEmpty());
}

QTEST_MAIN(AccessibilityTest)
#include "tst_accessibility.moc"
