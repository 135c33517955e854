// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/batterywidget.h"
#include "tests/support/rawcard.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

#include <functional>

class BatteryCardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theCardIsAtLeast260WideAndAtMost170High();
    void theCardCarriesItsNeutralProperties();
    void aNewCardShowsThePlaceholders_data();
    void aNewCardShowsThePlaceholders();
    void theLabelsHaveTheirFontAndAlignment_data();
    void theLabelsHaveTheirFontAndAlignment();
    void theFramesHaveTheirShape_data();
    void theFramesHaveTheirShape();
    void theWidgetsLieInTheirCells_data();
    void theWidgetsLieInTheirCells();
    void theLayoutsHaveTheirSpacing();
    void theSpacersPushTheCardUpAndToTheLeft();
    void theButtonIsFixedInSizeAndStartsRed();
    void theFormWorksOnAnyWidget();
    void aSetterRefreshesItsLabel_data();
    void aSetterRefreshesItsLabel();
    void theNameIsShownAsItStands();
    void thePurchaseDateIsNotShown();
    void theRatesShareOneLabel();
    void numbersAreNotGroupedInAnyLanguage();
    void theButtonShowsTheChargeState();
    void theSimpleModeHidesTheFiguresOfTheLastDischarge();
    void theComplexModeShowsEverything();
    void anotherModeIsStoredAndChangesNothingShown_data();
    void anotherModeIsStoredAndChangesNothingShown();
    void theCaptionsAndTheButtonFollowTheLanguage();
    void thePlaceholderOfTheButtonOutlivesAChangeOfLanguage();
};

namespace {

template <typename Widget = QLabel>
Widget *find(const QWidget &card, const char *name)
{
    auto *widget = card.findChild<Widget *>(QLatin1String(name));
    Q_ASSERT(widget);
    return widget;
}

const char *const details[] = {"lbl_discharged_label", "lbl_discharged", "lbl_maxCurrent_label",
                               "lbl_maxCurrent"};
const char *const always[] = {"lbl_name",     "lbl_capacity", "lbl_rate",  "label_6",
                              "lbl_dateTime", "label",        "lbl_cycles"};

const QString green = QStringLiteral("background-color: rgb(0, 255, 0);\ncolor: rgb(85, 170, 255);");
const QString red = QStringLiteral("background-color: rgb(255, 50, 0);\ncolor: rgb(255, 255, 255);");

/** Turns every text of the card into the same text in angle brackets. */
class BracketTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (qstrcmp(context, "BatteryWidget") != 0)
            return {};
        return QLatin1Char('<') + QLatin1String(text) + QLatin1Char('>');
    }
    bool isEmpty() const override { return false; }
};

} // namespace

void BatteryCardTest::init()
{
    // The offscreen platform itself remarks on every window that is shown.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
}

void BatteryCardTest::theCardIsAtLeast260WideAndAtMost170High()
{
    BatteryWidget card;
    QCOMPARE(card.objectName(), QStringLiteral("BatteryWidget"));
    QCOMPARE(card.windowTitle(), QStringLiteral("BatteryWidget"));
    QCOMPARE(card.minimumSize(), QSize(260, 0));
    QCOMPARE(card.maximumSize(), QSize(11111, 170));
    QCOMPARE(card.size(), QSize(260, 154));
    card.resize(20, 1000);
    QCOMPARE(card.size(), QSize(260, 170));

    card.setViewMode(BatteryWidget::Complex);
    card.show();
    QVERIFY(QTest::qWaitForWindowExposed(&card));
    card.resize(5000, 5000);
    QCOMPARE(card.height(), 170);
}

void BatteryCardTest::theCardCarriesItsNeutralProperties()
{
    BatteryWidget card;
    QCOMPARE(card.property("batteryName"), QVariant(QString(QLatin1String(""))));
    QCOMPARE(card.property("batteryCharged"), QVariant(false));
    QCOMPARE(card.property("lastUpdated").metaType(), QMetaType(QMetaType::QDateTime));
    QVERIFY(!card.property("lastUpdated").toDateTime().isValid());
    for (const char *name : {"batteryCapacity", "batteryRating", "batteryCycles", "batteryLastDischarged",
                             "batteryLastMaxCurrent", "batteryChargeRate"})
        QCOMPARE(card.property(name), QVariant(0U));
}

void BatteryCardTest::aNewCardShowsThePlaceholders_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("name") << "lbl_name"
                          << "Lipolar";
    QTest::newRow("capacity") << "lbl_capacity"
                              << "4500mAh";
    QTest::newRow("rate") << "lbl_rate"
                          << "30C";
    QTest::newRow("last use") << "lbl_dateTime"
                              << "01.01.2018 23:15:59";
    QTest::newRow("discharged") << "lbl_discharged"
                                << "4000mAh";
    QTest::newRow("current") << "lbl_maxCurrent"
                             << "100,0A";
    QTest::newRow("cycles") << "lbl_cycles"
                            << "11111";
    QTest::newRow("caption of last use") << "label_6"
                                         << "Last use:";
    QTest::newRow("caption of discharged") << "lbl_discharged_label"
                                           << "Discharged:";
    QTest::newRow("caption of current") << "lbl_maxCurrent_label"
                                        << "Max. Current:";
    QTest::newRow("caption of cycles") << "label"
                                       << "Cycles:";
}

void BatteryCardTest::aNewCardShowsThePlaceholders()
{
    QFETCH(QString, name);
    BatteryWidget card;
    QTEST(find(card, qPrintable(name))->text(), "text");
    QCOMPARE(find<QPushButton>(card, "pushButton")->text(), QStringLiteral("Text"));
}

void BatteryCardTest::theLabelsHaveTheirFontAndAlignment_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("points"); // 0: the default font
    QTest::addColumn<bool>("bold");
    QTest::addColumn<int>("alignment");

    const int left = Qt::AlignLeft | Qt::AlignVCenter;
    const int right = Qt::AlignRight | Qt::AlignVCenter;
    QTest::newRow("name") << "lbl_name" << 10 << true << left;
    QTest::newRow("capacity") << "lbl_capacity" << 10 << true << int(Qt::AlignCenter);
    QTest::newRow("rate") << "lbl_rate" << 10 << true << int(Qt::AlignCenter);
    QTest::newRow("caption of last use") << "label_6" << 8 << false << right;
    QTest::newRow("last use") << "lbl_dateTime" << 8 << false << left;
    QTest::newRow("caption of discharged") << "lbl_discharged_label" << 8 << false << right;
    QTest::newRow("discharged") << "lbl_discharged" << 8 << false << left;
    QTest::newRow("caption of current") << "lbl_maxCurrent_label" << 8 << false << right;
    QTest::newRow("current") << "lbl_maxCurrent" << 0 << false << left;
    QTest::newRow("caption of cycles") << "label" << 0 << false << right;
    QTest::newRow("cycles") << "lbl_cycles" << 0 << false << left;
}

void BatteryCardTest::theLabelsHaveTheirFontAndAlignment()
{
    QFETCH(QString, name);
    QFETCH(int, points);
    QFETCH(bool, bold);
    QFETCH(int, alignment);
    BatteryWidget card;
    const QLabel *label = find(card, qPrintable(name));
    QCOMPARE(label->font().pointSize(), points == 0 ? QFont().pointSize() : points);
    QCOMPARE(label->font().bold(), bold);
    QCOMPARE(label->font().weight(), bold ? QFont::Bold : QFont::Normal);
    QCOMPARE(int(label->alignment() & ~Qt::AlignLeading), alignment & ~int(Qt::AlignLeading));
    QVERIFY(label->isEnabled());
}

void BatteryCardTest::theFramesHaveTheirShape_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("shape");
    QTest::addColumn<int>("shadow");
    QTest::newRow("the card's border") << "frame_3" << int(QFrame::Box) << int(QFrame::Plain);
    QTest::newRow("line") << "line" << int(QFrame::HLine) << int(QFrame::Sunken);
    QTest::newRow("top row") << "frame_2" << int(QFrame::NoFrame) << int(QFrame::Raised);
    QTest::newRow("figures") << "frame" << int(QFrame::NoFrame) << int(QFrame::Raised);
}

void BatteryCardTest::theFramesHaveTheirShape()
{
    QFETCH(QString, name);
    BatteryWidget card;
    const auto *frame = find<QFrame>(card, qPrintable(name));
    QTEST(int(frame->frameShape()), "shape");
    QTEST(int(frame->frameShadow()), "shadow");
    QCOMPARE(find<QFrame>(card, "frame_3")->lineWidth(), 2);
}

void BatteryCardTest::theWidgetsLieInTheirCells_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRect>("cell"); // column, row, column span, row span

    QTest::newRow("border") << "gridLayout_3"
                            << "frame_3" << QRect(0, 0, 1, 1);
    QTest::newRow("top row") << "gridLayout"
                             << "frame_2" << QRect(0, 0, 3, 1);
    QTest::newRow("button") << "gridLayout"
                            << "pushButton" << QRect(1, 1, 1, 1);
    QTest::newRow("line") << "gridLayout"
                          << "line" << QRect(0, 2, 3, 1);
    QTest::newRow("figures") << "gridLayout"
                             << "frame" << QRect(0, 3, 3, 1);
    QTest::newRow("caption of last use") << "gridLayout_2"
                                         << "label_6" << QRect(0, 0, 1, 1);
    QTest::newRow("last use") << "gridLayout_2"
                              << "lbl_dateTime" << QRect(1, 0, 1, 1);
    QTest::newRow("caption of cycles") << "gridLayout_2"
                                       << "label" << QRect(0, 1, 1, 1);
    QTest::newRow("cycles") << "gridLayout_2"
                            << "lbl_cycles" << QRect(1, 1, 1, 1);
    QTest::newRow("caption of discharged") << "gridLayout_2"
                                           << "lbl_discharged_label" << QRect(0, 2, 1, 1);
    QTest::newRow("discharged") << "gridLayout_2"
                                << "lbl_discharged" << QRect(1, 2, 1, 1);
    QTest::newRow("caption of current") << "gridLayout_2"
                                        << "lbl_maxCurrent_label" << QRect(0, 3, 1, 1);
    QTest::newRow("current") << "gridLayout_2"
                             << "lbl_maxCurrent" << QRect(1, 3, 1, 1);
}

void BatteryCardTest::theWidgetsLieInTheirCells()
{
    QFETCH(QString, layout);
    QFETCH(QString, name);
    BatteryWidget card;
    const auto *grid = card.findChild<QGridLayout *>(layout);
    QVERIFY(grid);
    const int index = grid->indexOf(find<QWidget>(card, qPrintable(name)));
    QVERIFY(index >= 0);
    int row = -1;
    int column = -1;
    int rowSpan = -1;
    int columnSpan = -1;
    grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
    QTEST(QRect(column, row, columnSpan, rowSpan), "cell");
}

void BatteryCardTest::theLayoutsHaveTheirSpacing()
{
    BatteryWidget card;
    const auto *outer = card.findChild<QGridLayout *>(QStringLiteral("gridLayout_3"));
    QCOMPARE(outer->spacing(), 6);
    QCOMPARE(outer->contentsMargins(), QMargins());
    const auto *border = card.findChild<QGridLayout *>(QStringLiteral("gridLayout"));
    QCOMPARE(border->horizontalSpacing(), 0);
    QCOMPARE(border->verticalSpacing(), 10);
    QCOMPARE(border->contentsMargins(), QMargins(5, 5, 5, 5));
    const auto *top = card.findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout_2"));
    QCOMPARE(top->spacing(), 6);
    QCOMPARE(top->contentsMargins(), QMargins());
    QCOMPARE(top->itemAt(0)->widget()->objectName(), QStringLiteral("lbl_name"));
    QCOMPARE(top->itemAt(1)->widget()->objectName(), QStringLiteral("lbl_capacity"));
    QCOMPARE(top->itemAt(2)->widget()->objectName(), QStringLiteral("lbl_rate"));
    const auto *figures = card.findChild<QGridLayout *>(QStringLiteral("gridLayout_2"));
    QCOMPARE(figures->horizontalSpacing(), 5);
    QCOMPARE(figures->verticalSpacing(), 2);
    QCOMPARE(figures->contentsMargins(), QMargins());
}

void BatteryCardTest::theSpacersPushTheCardUpAndToTheLeft()
{
    BatteryWidget card;
    const auto spacerAt = [&card](const char *layout, int row, int column) {
        auto *item = card.findChild<QGridLayout *>(QLatin1String(layout))->itemAtPosition(row, column);
        return item ? item->spacerItem() : nullptr;
    };
    const QSpacerItem *besideLeft = spacerAt("gridLayout", 1, 0);
    const QSpacerItem *besideRight = spacerAt("gridLayout", 1, 2);
    const QSpacerItem *right = spacerAt("gridLayout_3", 0, 2);
    const QSpacerItem *below = spacerAt("gridLayout_3", 1, 0);
    QVERIFY(besideLeft && besideRight && right && below);
    for (const QSpacerItem *spacer : {besideLeft, besideRight}) {
        QCOMPARE(spacer->sizeHint(), QSize(150, 20));
        QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Minimum));
    }
    QCOMPARE(right->sizeHint(), QSize(40, 20));
    QCOMPARE(right->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    QCOMPARE(below->sizeHint(), QSize(0, 40));
    QCOMPARE(below->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding));
}

void BatteryCardTest::theButtonIsFixedInSizeAndStartsRed()
{
    BatteryWidget card;
    const auto *button = find<QPushButton>(card, "pushButton");
    QCOMPARE(button->minimumSize(), QSize(100, 35));
    QCOMPARE(button->maximumSize(), QSize(100, 35));
    QCOMPARE(button->styleSheet(), red);
    QVERIFY(!card.getBatteryCharged());
}

void BatteryCardTest::theFormWorksOnAnyWidget()
{
    const RawCard form;
    QCOMPARE(form.widget.objectName(), QStringLiteral("BatteryWidget"));
    QCOMPARE(form.pushButton->styleSheet(), red);
    QCOMPARE(form.pushButton->text(), QStringLiteral("Text"));
    QCOMPARE(form.pushButton->metaObject(), &QPushButton::staticMetaObject);
    QCOMPARE(form.label_6->text(), QStringLiteral("Last use:"));
}

void BatteryCardTest::aSetterRefreshesItsLabel_data()
{
    using Setter = std::function<void(BatteryWidget &)>;
    QTest::addColumn<Setter>("set");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *tag, const char *name, const char *text, const Setter &set) {
        QTest::newRow(tag) << set << name << text;
    };
    row("capacity", "lbl_capacity", "2200mAh", [](BatteryWidget &card) { card.setBatteryCapacity(2200); });
    row("no capacity", "lbl_capacity", "0mAh", [](BatteryWidget &card) { card.setBatteryCapacity(0); });
    row("largest capacity", "lbl_capacity", "4294967295mAh",
        [](BatteryWidget &card) { card.setBatteryCapacity(4294967295U); });
    row("cycles", "lbl_cycles", "12", [](BatteryWidget &card) { card.setBatteryCycles(12); });
    row("no cycles", "lbl_cycles", "0", [](BatteryWidget &card) { card.setBatteryCycles(0); });
    row("discharged", "lbl_discharged", "1760mAh",
        [](BatteryWidget &card) { card.setBatteryLastDischarged(1760); });
    row("current", "lbl_maxCurrent", "45.50A",
        [](BatteryWidget &card) { card.setBatteryLastMaxCurrent(4550); });
    row("rating", "lbl_rate", "25C", [](BatteryWidget &card) { card.setBatteryRating(25); });
    row("charge rate alone", "lbl_rate", "0C/1.5C",
        [](BatteryWidget &card) { card.setBatteryChargeRate(15); });
    row("charge rate 0", "lbl_rate", "30C", [](BatteryWidget &card) { card.setBatteryChargeRate(0); });
    row("last use", "lbl_dateTime", "Sun Nov 15 12:04:22 2026", [](BatteryWidget &card) {
        card.setLastUpdated(QDateTime(QDate(2026, 11, 15), QTime(12, 4, 22, 345)));
    });
    row("never used", "lbl_dateTime", "", [](BatteryWidget &card) { card.setLastUpdated(QDateTime()); });
}

void BatteryCardTest::aSetterRefreshesItsLabel()
{
    QFETCH(std::function<void(BatteryWidget &)>, set);
    QFETCH(QString, name);
    BatteryWidget card;
    set(card);
    QTEST(find(card, qPrintable(name))->text(), "text");
}

void BatteryCardTest::theNameIsShownAsItStands()
{
    BatteryWidget card;
    for (QString name :
         {QStringLiteral("Pack A"), QStringLiteral("<b>R&D</b> & %1"), QStringLiteral("  "), QString()}) {
        card.setBatteryName(name);
        QCOMPARE(find(card, "lbl_name")->text(), name);
    }
    QString markup = QStringLiteral("<b>X</b>");
    QString plain = QStringLiteral("X");
    card.setBatteryName(markup);
    const int withMarkup = find(card, "lbl_name")->sizeHint().width();
    card.setBatteryName(plain);
    QVERIFY(withMarkup > find(card, "lbl_name")->sizeHint().width());
}

void BatteryCardTest::thePurchaseDateIsNotShown()
{
    BatteryWidget card;
    QDate date(2025, 3, 9);
    card.setDateOfPurchase(date);
    const QList<QLabel *> labels = card.findChildren<QLabel *>();
    for (const QLabel *label : labels)
        QVERIFY2(!label->text().contains(QStringLiteral("2025")), qPrintable(label->objectName()));
    QCOMPARE(labels.size(), 11);
}

void BatteryCardTest::theRatesShareOneLabel()
{
    BatteryWidget card;
    const QLabel *label = find(card, "lbl_rate");
    card.setBatteryRating(25);
    card.setBatteryChargeRate(0);
    QCOMPARE(label->text(), QStringLiteral("25C"));
    card.setBatteryChargeRate(20);
    QCOMPARE(label->text(), QStringLiteral("25C/2.0C"));
    card.setBatteryRating(40);
    QCOMPARE(label->text(), QStringLiteral("40C/2.0C"));
}

void BatteryCardTest::numbersAreNotGroupedInAnyLanguage()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    BatteryWidget card;
    card.setBatteryCapacity(1234567);
    card.setBatteryLastMaxCurrent(123456705);
    card.setLastUpdated(QDateTime(QDate(2026, 10, 6), QTime(8, 0)));
    QLocale::setDefault(before);
    QCOMPARE(find(card, "lbl_capacity")->text(), QStringLiteral("1234567mAh"));
    QCOMPARE(find(card, "lbl_maxCurrent")->text(), QStringLiteral("1234567.5A"));
    QCOMPARE(find(card, "lbl_dateTime")->text(), QStringLiteral("Tue Oct 6 08:00:00 2026"));
}

void BatteryCardTest::theButtonShowsTheChargeState()
{
    BatteryWidget card;
    const auto *button = find<QPushButton>(card, "pushButton");
    card.setBatteryCharged(true, false);
    QCOMPARE(button->text(), QStringLiteral("Charged"));
    QCOMPARE(button->styleSheet(), green); // light blue on bright green is meant
    card.setBatteryCharged(false, false);
    QCOMPARE(button->text(), QStringLiteral("Discharged"));
    QCOMPARE(button->styleSheet(), red);
}

void BatteryCardTest::theSimpleModeHidesTheFiguresOfTheLastDischarge()
{
    BatteryWidget card;
    card.show();
    QVERIFY(QTest::qWaitForWindowExposed(&card));
    QCOMPARE(card.getViewMode(), BatteryWidget::Simple);
    for (const char *name : details)
        QVERIFY2(find(card, name)->isHidden(), name);
    for (const char *name : always)
        QVERIFY2(find(card, name)->isVisible(), name);
    QVERIFY(find<QPushButton>(card, "pushButton")->isVisible());
}

void BatteryCardTest::theComplexModeShowsEverything()
{
    BatteryWidget card;
    card.show();
    card.setViewMode(BatteryWidget::Complex);
    QCOMPARE(card.getViewMode(), BatteryWidget::Complex);
    for (const char *name : details)
        QVERIFY2(find(card, name)->isVisible(), name);
    for (const char *name : always)
        QVERIFY2(find(card, name)->isVisible(), name);
    card.setViewMode(BatteryWidget::Simple);
    for (const char *name : details)
        QVERIFY2(!find(card, name)->isVisible(), name);
}

void BatteryCardTest::anotherModeIsStoredAndChangesNothingShown_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("other");
    QTest::newRow("2 after Simple") << 0 << 2;
    QTest::newRow("2 after Complex") << 1 << 2;
    QTest::newRow("-1 after Complex") << 1 << -1;
    QTest::newRow("large after Simple") << 0 << 1000000;
}

void BatteryCardTest::anotherModeIsStoredAndChangesNothingShown()
{
    QFETCH(int, before);
    QFETCH(int, other);
    BatteryWidget card;
    card.setViewMode(static_cast<BatteryWidget::ViewMode>(before));
    card.setViewMode(static_cast<BatteryWidget::ViewMode>(other));
    QCOMPARE(static_cast<int>(card.getViewMode()), other);
    for (const char *name : details)
        QCOMPARE(find(card, name)->isHidden(), before == 0);
}

void BatteryCardTest::theCaptionsAndTheButtonFollowTheLanguage()
{
    BatteryWidget card;
    QString name = QStringLiteral("Pack A");
    card.setBatteryName(name);
    card.setBatteryCapacity(2200);
    card.setBatteryCharged(true, false);
    card.setViewMode(BatteryWidget::Complex);

    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(find(card, "label_6")->text(), QStringLiteral("<Last use:>"));
    QCOMPARE(find(card, "lbl_discharged_label")->text(), QStringLiteral("<Discharged:>"));
    QCOMPARE(find(card, "lbl_maxCurrent_label")->text(), QStringLiteral("<Max. Current:>"));
    QCOMPARE(find(card, "label")->text(), QStringLiteral("<Cycles:>"));
    QCOMPARE(card.windowTitle(), QStringLiteral("<BatteryWidget>"));
    QCOMPARE(find<QPushButton>(card, "pushButton")->text(), QStringLiteral("<Charged>"));
    QCOMPARE(find<QPushButton>(card, "pushButton")->styleSheet(), green);
    QCOMPARE(find(card, "lbl_name")->text(), QStringLiteral("Pack A"));
    QCOMPARE(find(card, "lbl_capacity")->text(), QStringLiteral("2200mAh"));
    QVERIFY(!find(card, "lbl_discharged")->isHidden());

    card.setBatteryCharged(false, false);
    QCOMPARE(find<QPushButton>(card, "pushButton")->text(), QStringLiteral("<Discharged>"));
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(find<QPushButton>(card, "pushButton")->text(), QStringLiteral("Discharged"));
    QCOMPARE(find(card, "label")->text(), QStringLiteral("Cycles:"));
}

void BatteryCardTest::thePlaceholderOfTheButtonOutlivesAChangeOfLanguage()
{
    BatteryWidget card;
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(find<QPushButton>(card, "pushButton")->text(), QStringLiteral("Text"));
    QCOMPARE(find(card, "lbl_rate")->text(), QStringLiteral("30C"));
    QVERIFY(QCoreApplication::removeTranslator(&translator));
}

QTEST_MAIN(BatteryCardTest)
#include "tst_batterycard.moc"
