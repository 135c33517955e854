// SPDX-License-Identifier: GPL-3.0-or-later
// Whether everything that is ours can be read, measured from pictures in a light and a dark palette.
#include "host/window/plotview.h"
#include "tests/host/support/flown.h"
#include "tests/host/support/panel.h"
#include "tests/support/contrast.h"

#include <QAbstractBarSeries>
#include <QAbstractButton>
#include <QApplication>
#include <QBarSet>
#include <QChart>
#include <QGraphicsTextItem>
#include <QListWidget>
#include <QXYSeries>

#include <functional>
#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class ContrastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theTextsOfTheLogbookAndItsCardsCanBeRead_data() { addPalettes(); }
    void theTextsOfTheLogbookAndItsCardsCanBeRead();
    void messagesCanBeRead_data() { addPalettes(); }
    void messagesCanBeRead();
    void adviceCanBeRead_data() { addPalettes(); }
    void adviceCanBeRead();
    void theTextsOfEveryTabCanBeRead_data() { addPalettes(); }
    void theTextsOfEveryTabCanBeRead();
    void plotsCanBeRead_data() { addPalettes(); }
    void plotsCanBeRead();
    void theMarksOfAPlotCanBeSeen_data() { addPalettes(); }
    void theMarksOfAPlotCanBeSeen();

private:
    static void addPalettes();
    static QImage pictureOf(QWidget &widget, const QRect &part)
    {
        return widget.grab(part.intersected(widget.rect())).toImage();
    }
    static QStringList unreadable(QWidget &area);
    void open(const QByteArray &document = Flown::logbook());
    void forEachPlot(const std::function<void(PlotView &)> &measure);

    QPalette m_palette = QApplication::palette();
    std::unique_ptr<HostWindow> m_window;
};

void ContrastTest::addPalettes()
{
    QPalette dark(QColor(0x353535));
    dark.setColor(QPalette::Base, QColor(0x191919));
    dark.setColor(QPalette::AlternateBase, QColor(0x2a2a2a));
    dark.setColor(QPalette::Text, Qt::white);
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << QPalette(QColor(0xefefef));
    QTest::newRow("dark") << dark;
}

void ContrastTest::cleanup()
{
    m_window.reset();
    QApplication::setPalette(m_palette);
}

void ContrastTest::open(const QByteArray &document)
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    m_window = std::make_unique<HostWindow>(document);
    m_window->window().resize(1400, 900);
    QCoreApplication::processEvents();
}

/** The labels and buttons on show that have a text and can be used. Frames of buttons are left out. */
QStringList ContrastTest::unreadable(QWidget &area)
{
    constexpr QMargins Frame(5, 4, 5, 4);
    QStringList found;
    int measured = 0;
    const auto widgets = area.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isButton = qobject_cast<QAbstractButton *>(widget);
        const bool isText = isButton || qobject_cast<QLabel *>(widget);
        const QString text = widget->property("text").toString();
        if (!isText || text.isEmpty() || !widget->isVisible() || !widget->isEnabled() ||
            widget->objectName() == u"pushButton"_s) // a card's, whose colours are its own
            continue;
        QRect place(widget->mapTo(area.window(), QPoint()), widget->size());
        if (isButton)
            place = place.marginsRemoved(Frame);
        const double contrast = Contrast::inside(pictureOf(*area.window(), place));
        ++measured;
        if (contrast < Contrast::OfText)
            found.append(u"%1: %2"_s.arg(text).arg(contrast));
    }
    return measured > 0 ? found : QStringList(u"nothing was measured"_s);
}

void ContrastTest::theTextsOfTheLogbookAndItsCardsCanBeRead()
{
    open(HostWindow::sample());
    const QStringList found = unreadable(m_window->gui());
    QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
}

/** Its colours are fixed, and not far apart: an outline keeps the letters from the background. */
void ContrastTest::messagesCanBeRead()
{
    open();
    m_window->messages().tell(u"plain"_s, u"Something was done."_s);
    m_window->messages().tell(u"question"_s, u"Something can be done."_s, {{u"Do It"_s, [] {}}});
    QCoreApplication::processEvents();
    const QStringList found = unreadable(m_window->messages());
    QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
}

void ContrastTest::adviceCanBeRead()
{
    open();
    QWidget &tab = Panel::open(*m_window, SidePanel::Today);
    auto *list = tab.findChild<QListWidget *>();
    QVERIFY(list->count() > 1);
    list->clearSelection();
    for (int row = 0; row < list->count(); ++row) {
        QRect place = list->visualItemRect(list->item(row)) & list->viewport()->rect();
        if (place.height() < list->fontMetrics().height())
            continue;
        place.setLeft(place.left() + list->iconSize().width() + 30); // past the icon
        const double contrast = Contrast::inside(pictureOf(*list->viewport(), place));
        QVERIFY2(contrast >= Contrast::OfText,
                 qPrintable(u"%1: %2"_s.arg(list->item(row)->text()).arg(contrast)));
    }
}

void ContrastTest::theTextsOfEveryTabCanBeRead()
{
    open();
    for (int tab = 0; tab < SidePanel::tabNames().size(); ++tab) {
        const QStringList found = unreadable(Panel::open(*m_window, static_cast<SidePanel::Tab>(tab)));
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
    }
}

/** The plots of two tabs, one after the other. */
void ContrastTest::forEachPlot(const std::function<void(PlotView &)> &measure)
{
    for (const SidePanel::Tab number : {SidePanel::Batteries, SidePanel::Statistics}) {
        QWidget &tab = Panel::open(*m_window, number);
        if (auto *table = Panel::named<QAbstractItemView>(tab, u"Batteries and their figures"_s))
            table->setCurrentIndex(table->model()->index(0, 0));
        QTest::qWait(50);
        PlotView *plot = tab.findChild<PlotView *>();
        QVERIFY(plot->isVisible());
        QVERIFY(!plot->chart()->series().isEmpty());
        measure(*plot);
    }
}

void ContrastTest::plotsCanBeRead()
{
    open();
    int measured = 0;
    forEachPlot([&measured](PlotView &plot) {
        const QImage picture = plot.viewport()->grab().toImage();
        const auto items = plot.scene()->items();
        for (const QGraphicsItem *item : items) {
            const auto *text = dynamic_cast<const QGraphicsTextItem *>(item);
            if (!text || !text->isVisible() || text->toPlainText().isEmpty())
                continue;
            const QRect place = plot.mapFromScene(text->sceneBoundingRect()).boundingRect();
            const double contrast = Contrast::inside(picture.copy(place & picture.rect()));
            ++measured;
            QVERIFY2(contrast >= Contrast::OfText,
                     qPrintable(u"%1: %2"_s.arg(text->toPlainText()).arg(contrast)));
        }
    });
    QVERIFY(measured > 10);
}

/** Points, lines and bars, in the colours that the picture has. */
void ContrastTest::theMarksOfAPlotCanBeSeen()
{
    open();
    forEachPlot([](PlotView &plot) {
        const QImage picture = plot.viewport()->grab().toImage();
        const QColor ground = plot.palette().color(QPalette::Base);
        const auto series = plot.chart()->series();
        int measured = 0;
        for (const QAbstractSeries *one : series) {
            const auto *points = qobject_cast<const QXYSeries *>(one);
            const auto *bars = qobject_cast<const QAbstractBarSeries *>(one);
            const QColor colour =
                points ? points->pen().color() : bars->barSets().constFirst()->brush().color();
            const double contrast = Contrast::between(ground, colour);
            QVERIFY2(Contrast::has(picture, colour), qPrintable(colour.name())); // it is what is drawn
            QVERIFY2(contrast >= Contrast::OfText, qPrintable(u"%1 %2"_s.arg(colour.name()).arg(contrast)));
            ++measured;
        }
        QVERIFY(measured > 0);
    });
}

QTEST_MAIN(ContrastTest)
#include "tst_contrast.moc"
