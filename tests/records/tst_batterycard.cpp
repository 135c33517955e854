// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/batterywidget.h"
#include "tests/records/card.h"
#include "tests/support/rawcard.h"

#include <QFrame>
#include <QGridLayout>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class BatteryCardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theCardIsAtLeast260WideAndAtMost170High();
    void theCardCarriesItsNeutralProperties();
    void theLabelsHaveTheirFontAndAlignment_data();
    void theLabelsHaveTheirFontAndAlignment();
    void theFramesHaveTheirShape_data();
    void theFramesHaveTheirShape();
    void theWidgetsLieInTheirCells_data();
    void theWidgetsLieInTheirCells();
    void theLayoutsHaveTheirSpacing();
    void theSpacersPushTheCardUpAndToTheLeft();
    void theFormWorksOnAnyWidget();
    void theSimpleModeHidesTheFiguresOfTheLastDischarge();
    void theComplexModeShowsEverything();
    void anotherModeIsStoredAndChangesNothingShown_data();
    void anotherModeIsStoredAndChangesNothingShown();
};

namespace {

using Card::find;

const char *const details[] = {"lbl_discharged_label", "lbl_discharged", "lbl_maxCurrent_label",
                               "lbl_maxCurrent"};
const char *const always[] = {"lbl_name",     "lbl_capacity", "lbl_rate",  "label_6",
                              "lbl_dateTime", "label",        "lbl_cycles"};

} // namespace

void BatteryCardTest::init()
{
    // The offscreen platform itself remarks on every window that is shown.
    QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
}

void BatteryCardTest::theCardIsAtLeast260WideAndAtMost170High()
{
    BatteryWidget card;
    QCOMPARE(card.objectName(), u"BatteryWidget"_s);
    QCOMPARE(card.windowTitle(), u"BatteryWidget"_s);
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
    const auto *outer = card.findChild<QGridLayout *>(u"gridLayout_3"_s);
    QCOMPARE(outer->spacing(), 6);
    QCOMPARE(outer->contentsMargins(), QMargins());
    const auto *border = card.findChild<QGridLayout *>(u"gridLayout"_s);
    QCOMPARE(border->horizontalSpacing(), 0);
    QCOMPARE(border->verticalSpacing(), 10);
    QCOMPARE(border->contentsMargins(), QMargins(5, 5, 5, 5));
    const auto *top = card.findChild<QHBoxLayout *>(u"horizontalLayout_2"_s);
    QCOMPARE(top->spacing(), 6);
    QCOMPARE(top->contentsMargins(), QMargins());
    QCOMPARE(top->itemAt(0)->widget()->objectName(), u"lbl_name"_s);
    QCOMPARE(top->itemAt(1)->widget()->objectName(), u"lbl_capacity"_s);
    QCOMPARE(top->itemAt(2)->widget()->objectName(), u"lbl_rate"_s);
    const auto *figures = card.findChild<QGridLayout *>(u"gridLayout_2"_s);
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

void BatteryCardTest::theFormWorksOnAnyWidget()
{
    const RawCard form;
    QCOMPARE(form.widget.objectName(), u"BatteryWidget"_s);
    QCOMPARE(form.pushButton->text(), u"Text"_s);
    QCOMPARE(form.pushButton->metaObject(), &QPushButton::staticMetaObject);
    QCOMPARE(form.label_6->text(), u"Last use:"_s);
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

QTEST_MAIN(BatteryCardTest)
#include "tst_batterycard.moc"
