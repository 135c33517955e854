// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/batterywidget.h"
#include "tests/records/card.h"
#include "tests/support/rawcard.h"
#include "tests/support/warnings.h"

#include <QFrame>
#include <QGridLayout>
#include <QMap>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class BatteryCardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theCardIsAtLeast260WideAndAtMost170High();
    void theCardCarriesItsNeutralProperties();
    void thePartsHaveTheirPlaceAndLook_data();
    void thePartsHaveTheirPlaceAndLook();
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

/** The layout that holds @p widget and its place there, as "gridLayout 1 0 1 3". */
QString placeOf(QWidget &widget)
{
    for (const QLayout *layout : widget.parentWidget()->findChildren<QLayout *>()) {
        const int index = layout->indexOf(&widget);
        if (index < 0)
            continue;
        const auto *grid = qobject_cast<const QGridLayout *>(layout);
        if (!grid)
            return u"%1 %2"_s.arg(layout->objectName()).arg(index);
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(index, &row, &column, &rows, &columns);
        return u"%1 %2 %3 %4 %5"_s.arg(layout->objectName()).arg(row).arg(column).arg(rows).arg(columns);
    }
    return {};
}

/** The spacing and the margins of a layout whose margins are the same on all sides. */
QString lookOf(const QLayout &layout)
{
    const auto *grid = qobject_cast<const QGridLayout *>(&layout);
    const QString spacing = grid ? u"%1 %2"_s.arg(grid->horizontalSpacing()).arg(grid->verticalSpacing())
                                 : QString::number(layout.spacing());
    const int margin = layout.contentsMargins().left();
    if (layout.contentsMargins() != QMargins(margin, margin, margin, margin))
        return u"uneven margins"_s;
    return u"spacing %1, margins %2"_s.arg(spacing).arg(margin);
}

QString lookOf(const QLabel &label)
{
    const QFont font = label.font();
    const bool isDefault = font.pointSize() == QFont().pointSize();
    QStringList look{isDefault ? u"default"_s : QString::number(font.pointSize())};
    if (font.weight() == QFont::Bold)
        look.append(u"bold"_s);
    if (!label.isEnabled())
        look.append(u"disabled"_s);
    const Qt::Alignment alignment = label.alignment();
    if (alignment == Qt::AlignCenter)
        look.append(u"centre"_s);
    if (alignment == (Qt::AlignRight | Qt::AlignVCenter))
        look.append(u"right"_s);
    if (alignment == (Qt::AlignLeft | Qt::AlignVCenter))
        look.append(u"left"_s);
    return look.join(u' ');
}

QString lookOf(const QFrame &frame)
{
    const QMap<QFrame::Shape, QString> shapes{
        {QFrame::NoFrame, u"none"_s}, {QFrame::Box, u"box"_s}, {QFrame::HLine, u"line"_s}};
    const QMap<QFrame::Shadow, QString> shadows{
        {QFrame::Plain, u"plain"_s}, {QFrame::Raised, u"raised"_s}, {QFrame::Sunken, u"sunken"_s}};
    QStringList look{shapes.value(frame.frameShape()), shadows.value(frame.frameShadow())};
    if (frame.lineWidth() != 1)
        look.append(QString::number(frame.lineWidth()));
    return look.join(u' ');
}

/** What the form fixes of @p widget beside its text. */
QString lookOf(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return lookOf(*label);
    if (const auto *frame = qobject_cast<const QFrame *>(&widget))
        return lookOf(*frame);
    const QSize size = widget.minimumSize();
    return size == widget.maximumSize() ? u"%1 %2"_s.arg(size.width()).arg(size.height()) : QString();
}

} // namespace

void BatteryCardTest::init()
{
    Test::failOnWarnings();
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

void BatteryCardTest::thePartsHaveTheirPlaceAndLook_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("place"); // its layout, row, column, row span and column span there
    QTest::addColumn<QString>("look");
    const auto row = [](const char *part, const char *place, const char *look) {
        QTest::newRow(part) << QString::fromLatin1(part) << QString::fromLatin1(place)
                            << QString::fromLatin1(look);
    };
    row("frame_3", "gridLayout_3 0 0 1 1", "box plain 2");
    row("pushButton", "gridLayout 1 1 1 1", "100 35");
    row("line", "gridLayout 2 0 1 3", "line sunken");
    row("frame_2", "gridLayout 0 0 1 3", "none raised");
    row("lbl_name", "horizontalLayout_2 0", "10 bold left");
    row("lbl_capacity", "horizontalLayout_2 1", "10 bold centre");
    row("lbl_rate", "horizontalLayout_2 2", "10 bold centre");
    row("frame", "gridLayout 3 0 1 3", "none raised");
    row("label_6", "gridLayout_2 0 0 1 1", "8 right");
    row("lbl_dateTime", "gridLayout_2 0 1 1 1", "8 left");
    row("label", "gridLayout_2 1 0 1 1", "default right");
    row("lbl_cycles", "gridLayout_2 1 1 1 1", "default left");
    row("lbl_discharged_label", "gridLayout_2 2 0 1 1", "8 right");
    row("lbl_discharged", "gridLayout_2 2 1 1 1", "8 left");
    row("lbl_maxCurrent_label", "gridLayout_2 3 0 1 1", "8 right");
    row("lbl_maxCurrent", "gridLayout_2 3 1 1 1", "default left");
    row("gridLayout_3", "BatteryWidget", "spacing 6 6, margins 0");
    row("gridLayout", "frame_3", "spacing 0 10, margins 5");
    row("horizontalLayout_2", "frame_2", "spacing 6, margins 0");
    row("gridLayout_2", "frame", "spacing 5 2, margins 0");
}

void BatteryCardTest::thePartsHaveTheirPlaceAndLook()
{
    QFETCH(QString, part);
    BatteryWidget card;
    if (const auto *layout = card.findChild<QLayout *>(part)) {
        QTEST(layout->parentWidget()->objectName(), "place");
        QTEST(lookOf(*layout), "look");
        return;
    }
    auto *widget = find<QWidget>(card, qPrintable(part));
    QTEST(placeOf(*widget), "place");
    QTEST(lookOf(*widget), "look");
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
