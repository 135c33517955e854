// SPDX-License-Identifier: GPL-3.0-or-later
// Names longer than anybody writes, as a damaged or a hostile file may hold them. What is shown of them is
// short, what is kept of them is all.
#include "gui/namechooser.h"
#include "records/shorttext.h"
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

#include <QLabel>
#include <QStyleFactory>

#include <ctime>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class LongNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextIsShownUpToAThousandCharacters_data();
    void aTextIsShownUpToAThousandCharacters();
    void aCardShowsTheBeginningOfALongName_data();
    void aCardShowsTheBeginningOfALongName();
    void theLogBookShowsTheBeginningOfLongNames_data();
    void theLogBookShowsTheBeginningOfLongNames();
    void theItemsOfEveryChooserAreWhole();
    void aChooserPaintsAndMeasuresTheBeginning();
    void theOpenListOfAChooserPaintsTheBeginning_data();
    void theOpenListOfAChooserPaintsTheBeginning();
    void theOpenListIsAsWideAsTheBeginningsOfItsItems();
    void longNamesAreToldApartByTheirEnds();
    void anEnormousNameHoldsUpNoPage();
    void anEnormousNameIsSavedWhole();
};

namespace {
constexpr int Limit = 1000;
constexpr int Enormous = 30'000'000;
constexpr double MostSeconds = 10;

void addLengths()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("shown");
    QTest::addRow("shorter") << 999 << 999;
    QTest::addRow("as long as can be") << 1000 << 1000;
    QTest::addRow("longer by one") << 1001 << 1000;
    QTest::addRow("much longer") << 100000 << 1000;
}

/** What the process has taken, in seconds: unlike the time of day it does not depend on what else is going
 * on. */
double processorTime()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

Battery battery(const QString &name)
{
    return {name, false, {{moment(0), 1500, 0}}};
}

Model model(const QString &name, const QString &location)
{
    return {name, {name}, {{moment(0), location}}};
}

/** A model with a flight at one place, and the battery that was flown, all with this name. */
QByteArray logbook(const QString &name)
{
    return document({{battery(name)}, {model(name, name)}, {name}});
}

QByteArray enormousNames()
{
    return logbook(QString(Enormous, u'n'));
}

QList<QComboBox *> choosers(const VoltbokGui &window)
{
    return window.findChildren<QComboBox *>();
}
} // namespace

void LongNamesTest::aTextIsShownUpToAThousandCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const auto many = [](int count) { return QString(count, u'x'); };
    QTest::addRow("nothing") << QString() << QString();
    QTest::addRow("999") << many(999) << many(999);
    QTest::addRow("1000") << many(1000) << many(1000);
    QTest::addRow("1001") << many(1001) << many(1000);
    const QString battery = u"🔋"_s; // takes two
    QTest::addRow("a character up to the limit") << many(998) + battery + u'x' << many(998) + battery;
    QTest::addRow("a character across the limit") << many(999) + battery << many(999);
}

void LongNamesTest::aTextIsShownUpToAThousandCharacters()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QCOMPARE(shortText(text), shown);
}

void LongNamesTest::aCardShowsTheBeginningOfALongName_data()
{
    addLengths();
}

void LongNamesTest::aCardShowsTheBeginningOfALongName()
{
    QFETCH(int, length);
    QFETCH(int, shown);
    QString name = QString(length, u'n');
    BatteryWidget battery;
    battery.setBatteryName(name);
    QCOMPARE(battery.findChild<QLabel *>(u"lbl_name"_s)->text(), QString(shown, u'n'));
    QCOMPARE(battery.getBatteryName(), name);
}

void LongNamesTest::theLogBookShowsTheBeginningOfLongNames_data()
{
    addLengths();
}

void LongNamesTest::theLogBookShowsTheBeginningOfLongNames()
{
    QFETCH(int, length);
    QFETCH(int, shown);
    LogbookWindow window;
    window.load(logbook(QString(length, u'n')));
    window.click(window.ui().pb_options);
    window.click(window.ui().pb_logbook);
    QCOMPARE(window.ui().lbl_logview_location->text(), QString(shown, u'n'));
    QCOMPARE(window.ui().lbl_logview_battname->text(), QString(shown, u'n'));
}

void LongNamesTest::theItemsOfEveryChooserAreWhole()
{
    const QString name(Limit + 1, u'n');
    LogbookWindow window;
    window.load(logbook(name));
    const QList<QComboBox *> all = choosers(window.gui());
    QCOMPARE(all.size(), 9);
    for (const QComboBox *chooser : all) {
        QCOMPARE(chooser->currentText(), name);
        QCOMPARE(chooser->findText(name), 0);
    }
}

void LongNamesTest::aChooserPaintsAndMeasuresTheBeginning()
{
    NameChooser atTheLimit;
    NameChooser beyond;
    atTheLimit.addItem(QString(Limit, u'n'));
    beyond.addItem(QString(3 * Limit, u'n'));
    QCOMPARE(beyond.sizeHint(), atTheLimit.sizeHint());
    QCOMPARE(beyond.minimumSizeHint(), atTheLimit.minimumSizeHint());
    QVERIFY(atTheLimit.sizeHint().width() > Limit);
    const QSize enough = atTheLimit.sizeHint() * 2; // for more than is painted
    atTheLimit.resize(enough);
    beyond.resize(enough);
    QCOMPARE(beyond.grab().toImage(), atTheLimit.grab().toImage());
}

void LongNamesTest::theOpenListOfAChooserPaintsTheBeginning_data()
{
    QTest::addColumn<QString>("style");
    QTest::addRow("as a menu") << u"Fusion"_s;
    QTest::addRow("as a list") << u"Windows"_s;
}

void LongNamesTest::theOpenListOfAChooserPaintsTheBeginning()
{
    QFETCH(QString, style);
    const std::unique_ptr<QStyle> look(QStyleFactory::create(style));
    NameChooser chooser;
    chooser.setStyle(look.get());
    chooser.addItem(QString(Limit, u'n'));
    chooser.addItem(QString(3 * Limit, u'n'));
    chooser.setCurrentIndex(-1);
    chooser.showPopup();
    QAbstractItemView *list = chooser.view();
    list->window()->resize(2 * chooser.sizeHint().width(), 200); // wide enough for more than is painted
    list->selectionModel()->reset();
    const auto painted = [&](int row) {
        return list->viewport()->grab(list->visualRect(chooser.model()->index(row, 0))).toImage();
    };
    QCOMPARE(painted(1), painted(0));
    const QAbstractItemModel *items = chooser.model();
    QCOMPARE(list->sizeHintForIndex(items->index(1, 0)), list->sizeHintForIndex(items->index(0, 0)));

    QCOMPARE(chooser.itemText(1).size(), 3 * Limit);
    list->setCurrentIndex(items->index(1, 0));
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(chooser.currentText().size(), 3 * Limit);
}

void LongNamesTest::theOpenListIsAsWideAsTheBeginningsOfItsItems()
{
    const QString noWidth(Limit, QChar(0x200B));
    const auto openedWidth = [](const QString &item) {
        NameChooser chooser;
        chooser.addItem(item);
        chooser.resize(50, 25);
        chooser.showPopup();
        return chooser.view()->window()->width();
    };
    const QString visible(40, u'n');
    QCOMPARE(openedWidth(noWidth + visible), openedWidth(noWidth));
    QVERIFY(openedWidth(visible) > openedWidth(noWidth));
}

void LongNamesTest::longNamesAreToldApartByTheirEnds()
{
    const QString beginning(2 * Limit, u'n');
    LogbookWindow window;
    window.load(document({{battery(beginning + u'1'), battery(beginning + u'2')},
                          {model(beginning + u'1', {}), model(beginning + u'2', {})}}));
    for (const QChar end : {u'2', u'1'}) {
        const QString name = beginning + end;
        window.choose(window.ui().cb_select_model, name);
        QCOMPARE(window.cardsOnShow(), QStringList(name));
        QCOMPARE(window.ui().cb_logview_model->currentText(), name);
    }
}

void LongNamesTest::anEnormousNameHoldsUpNoPage()
{
    // Laid out whole, each of the names would take many seconds on every page that shows it.
    const QByteArray file = enormousNames();
    LogbookWindow window;
    double begun = processorTime();
    window.load(file);
    window->grab();
    QVERIFY(processorTime() - begun < MostSeconds);
    Ui_VoltbokGui &ui = window.ui();
    for (QComboBox *chooser : choosers(window.gui()))
        QCOMPARE(chooser->currentText().size(), Enormous);
    const QList<QPushButton *> buttons = {ui.pb_chart,
                                          ui.pb_logbook,
                                          ui.pb_edit_data,
                                          ui.pb_choose_delbattery,
                                          ui.pb_choose_delmodel,
                                          ui.pb_choose_dellocation,
                                          ui.pb_choose_modify_battery,
                                          ui.pb_choose_modify_model};
    for (QPushButton *button : buttons) {
        begun = processorTime();
        button->click();
        window->grab();
        QVERIFY2(processorTime() - begun < MostSeconds, qPrintable(button->objectName()));
    }
    for (QComboBox *chooser : choosers(window.gui())) {
        begun = processorTime();
        chooser->showPopup();
        chooser->view()->grab();
        chooser->hidePopup();
        QVERIFY2(processorTime() - begun < MostSeconds, qPrintable(chooser->objectName()));
    }
}

void LongNamesTest::anEnormousNameIsSavedWhole()
{
    const QByteArray name(Enormous, 'n');
    LogbookWindow window;
    window.load(enormousNames());
    window.clickCard(window->batteryList.constFirst());
    const QByteArray saved = window.fileBytes();
    QCOMPARE(saved.count(">" + name + "<"), 3);   // the battery, the model and the assignment
    QCOMPARE(saved.count("\"" + name + "\""), 2); // the location and the flight
}

QTEST_MAIN(LongNamesTest)
#include "tst_longnames.moc"
