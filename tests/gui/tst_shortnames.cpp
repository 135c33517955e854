// SPDX-License-Identifier: GPL-3.0-or-later
// Names that are longer than the place where they are shown.
#include "gui/namechooser.h"
#include "records/namelabel.h"
#include "tests/support/warnings.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QStyleFactory>
#include <QTest>
#include <QToolTip>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Long =
    u"A battery with a name that is as long as half a sentence, and "_s.repeated(8) + u"its end"_s;

void askForToolTip(QWidget *widget, QPoint place = QPoint(3, 3))
{
    QToolTip::hideText();
    QHelpEvent help(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &help);
}

/** What is painted of a text in this many pixels. */
QImage painted(const QString &text, const QSize &size)
{
    NameLabel label;
    label.setTextFormat(Qt::PlainText);
    label.setText(text);
    label.resize(size);
    return label.grab().toImage();
}

QImage painted(const QString &text, const QString &style, int width)
{
    const std::unique_ptr<QStyle> look(QStyleFactory::create(style));
    NameChooser chooser;
    chooser.setStyle(look.get());
    chooser.addItem(text);
    chooser.resize(width, 25);
    return chooser.grab().toImage();
}

} // namespace

class ShortNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Test::failOnWarnings(); }
    void cleanup() { QToolTip::hideText(); }
    void aNameThatFitsIsPaintedAsByAnyLabel();
    void aNameThatDoesNotFitEndsInAnEllipsis();
    void aCutNameIsOneLine();
    void aCutNameIsToldInATooltip();
    void aNameThatFitsHasNoTooltip();
    void aNameInATooltipIsNoMarkup();
    void aChooserEndsALongNameInAnEllipsis_data();
    void aChooserEndsALongNameInAnEllipsis();
    void aChooserTellsACutNameInATooltip();
    void aChooserKeepsItsOwnTooltipForANameThatFits();
    void theOpenListIsNoWiderThanHalfTheScreen_data();
    void theOpenListIsNoWiderThanHalfTheScreen();
    void theOpenListTellsACutNameInATooltip();
};

void ShortNamesTest::aNameThatFitsIsPaintedAsByAnyLabel()
{
    QLabel label(u"6S 3700 No. 2"_s);
    label.setTextFormat(Qt::PlainText);
    label.resize(label.sizeHint());
    QCOMPARE(painted(label.text(), label.size()), label.grab().toImage());
}

void ShortNamesTest::aNameThatDoesNotFitEndsInAnEllipsis()
{
    const QSize size(90, 20);
    const QString cut =
        QFontMetrics(QApplication::font("QLabel")).elidedText(Long, Qt::ElideRight, size.width());
    QVERIFY(cut.endsWith(u'…'));
    QCOMPARE(painted(Long, size), painted(cut, size));
}

void ShortNamesTest::aCutNameIsOneLine()
{
    QString lines = Long;
    lines[9] = u'\n';
    QString line = Long;
    line[9] = u' ';
    QCOMPARE(painted(lines, {90, 20}), painted(line, {90, 20}));
}

void ShortNamesTest::aCutNameIsToldInATooltip()
{
    NameLabel label;
    label.setText(Long);
    label.resize(90, 20);
    label.show();
    askForToolTip(&label);
    QVERIFY(QToolTip::text().contains(Long));
    QCOMPARE(label.text(), Long);
}

void ShortNamesTest::aNameThatFitsHasNoTooltip()
{
    NameLabel label;
    label.setText(u"Pack A"_s);
    label.resize(label.sizeHint());
    label.show();
    askForToolTip(&label);
    QVERIFY(QToolTip::text().isEmpty());
}

void ShortNamesTest::aNameInATooltipIsNoMarkup()
{
    NameLabel label;
    label.setTextFormat(Qt::PlainText);
    label.setText(u"<b>"_s + Long);
    label.resize(90, 20);
    label.show();
    askForToolTip(&label);
    QVERIFY(QToolTip::text().contains(u"&lt;b&gt;"_s));
}

void ShortNamesTest::aChooserEndsALongNameInAnEllipsis_data()
{
    QTest::addColumn<QString>("style");
    const QStringList styles = QStyleFactory::keys();
    for (const QString &style : styles)
        QTest::addRow("%s", qPrintable(style)) << style;
}

void ShortNamesTest::aChooserEndsALongNameInAnEllipsis()
{
    QFETCH(QString, style);
    const int width = 160;
    const QImage whole = painted(Long, style, width);
    bool ends = false; // in an ellipsis that is seen: what ends in one by itself, and fits, looks the same
    for (int end = 1; end < 40; ++end) {
        const QString cut = Long.first(end) + u'…';
        if (QFontMetrics(QApplication::font("QComboBox")).horizontalAdvance(cut) < width - 20)
            ends = ends || painted(cut, style, width) == whole;
    }
    QVERIFY(ends);
}

void ShortNamesTest::aChooserTellsACutNameInATooltip()
{
    NameChooser chooser;
    chooser.setToolTip(u"Model to show"_s);
    chooser.addItem(Long);
    chooser.resize(100, 25);
    chooser.show();
    askForToolTip(&chooser);
    QVERIFY(QToolTip::text().contains(Long));
}

void ShortNamesTest::aChooserKeepsItsOwnTooltipForANameThatFits()
{
    NameChooser chooser;
    chooser.setToolTip(u"Model to show"_s);
    chooser.addItem(u"Skylark"_s);
    chooser.resize(200, 25);
    chooser.show();
    askForToolTip(&chooser);
    QCOMPARE(QToolTip::text(), u"Model to show"_s);
}

void ShortNamesTest::theOpenListIsNoWiderThanHalfTheScreen_data()
{
    aChooserEndsALongNameInAnEllipsis_data();
}

void ShortNamesTest::theOpenListIsNoWiderThanHalfTheScreen()
{
    QFETCH(QString, style);
    const std::unique_ptr<QStyle> look(QStyleFactory::create(style));
    NameChooser chooser;
    chooser.setStyle(look.get());
    chooser.addItems({u"Pack A"_s, Long});
    chooser.resize(150, 25);
    chooser.show();
    chooser.showPopup();
    const int width = chooser.view()->window()->width();
    const int halfAScreen = chooser.screen()->availableGeometry().width() / 2;
    QVERIFY2(width < halfAScreen + 80, qPrintable(QString::number(width))); // frame and arrow come on top
    QCOMPARE(chooser.itemText(1), Long);
}

void ShortNamesTest::theOpenListTellsACutNameInATooltip()
{
    NameChooser chooser;
    chooser.addItems({u"Pack A"_s, Long});
    chooser.resize(150, 25);
    chooser.show();
    chooser.showPopup();
    QAbstractItemView *list = chooser.view();
    askForToolTip(list->viewport(), list->visualRect(chooser.model()->index(1, 0)).center());
    QVERIFY(QToolTip::text().contains(Long));
    askForToolTip(list->viewport(), list->visualRect(chooser.model()->index(0, 0)).center());
    QTRY_VERIFY(QToolTip::text().isEmpty());
}

QTEST_MAIN(ShortNamesTest)
#include "tst_shortnames.moc"
