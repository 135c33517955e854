// SPDX-License-Identifier: GPL-3.0-or-later
// Saving, copying and printing a plot.
#include "tests/host/support/shownplot.h"
#include "tests/support/brokendisk.h"
#include "tests/support/files.h"

#include <QClipboard>
#include <QSvgRenderer>

using namespace Qt::Literals::StringLiterals;
using Host::Battery;

class PlotButtonsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itIsSavedAsAPicture_data();
    void itIsSavedAsAPicture();
    void aNameThatNoFileCanHaveIsNotProposed();
    void whatCannotBeSavedIsTold_data();
    void whatCannotBeSavedIsTold();
    void whoDoesNotChooseAFileSavesNothing();
    void itIsCopied();
    void itIsPrinted();
    void whatCannotBePrintedIsTold();
    void withoutAPlotTheTableCanBePrinted();

private:
    std::unique_ptr<ShownPlot> m_shown;
};

void PlotButtonsTest::init()
{
    m_shown = std::make_unique<ShownPlot>();
}

void PlotButtonsTest::cleanup()
{
    QVERIFY(m_shown->questions.isDone());
    m_shown.reset();
    QApplication::setPalette(QPalette());
}

void PlotButtonsTest::itIsSavedAsAPicture_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("PNG") << u"plot.png"_s;
    QTest::newRow("capital letters") << u"PLOT.PNG"_s;
    QTest::newRow("SVG") << u"plot.svg"_s;
}

void PlotButtonsTest::itIsSavedAsAPicture()
{
    QFETCH(QString, name);
    QApplication::setPalette(m_shown->dark()); // of which paper knows nothing
    QCoreApplication::processEvents();
    m_shown->questions.chooseFile(m_shown->file(name));
    m_shown->press(u"Save Plot…"_s);
    QCOMPARE(m_shown->questions.told(), QStringList());
    QImage picture;
    if (name.endsWith(u"svg"_s)) {
        QSvgRenderer drawing(m_shown->file(name));
        QVERIFY(drawing.isValid());
        const QString text = QString::fromUtf8(Test::contents(m_shown->file(name)));
        QVERIFY(text.contains(u"Capacity used of Pack A"_s));
        const double fontSize = QRegularExpression(u"<g [^>]*font-size=\"([\\d.]+)\"[^>]*>\\s*<text"_s)
                                    .match(text)
                                    .captured(1)
                                    .toDouble();
        QVERIFY(qAbs(fontSize - QFontInfo(m_shown->view().font()).pixelSize()) <= 1.0);
        picture = QImage(drawing.viewBox().size(), QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        drawing.render(&painter);
    } else {
        QVERIFY(picture.load(m_shown->file(name), "PNG"));
    }
    QVERIFY(picture.width() >= m_shown->view().width() && picture.height() >= m_shown->view().height());
    qint64 ink = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ink += qGray(picture.pixel(x, y)) < 128 ? 1 : 0;
    }
    const qint64 all = qint64(picture.width()) * picture.height();
    QVERIFY2(ink > all / 2000 && ink < all / 10, qPrintable(QString::number(ink)));
    QCOMPARE(m_shown->chart().theme(), QChart::ChartThemeDark); // and the window nothing of paper
    QCOMPARE(m_shown->chart().size().toSize(), m_shown->view().size());
}

void PlotButtonsTest::aNameThatNoFileCanHaveIsNotProposed()
{
    Battery battery = m_shown->flown();
    battery.name = u"3S/450: A?"_s;
    m_shown->show(battery);
    m_shown->questions.chooseFile(QString());
    m_shown->press(u"Save Plot…"_s);
    QCOMPARE(m_shown->questions.proposed(), QStringList{u"Capacity used of 3S_450_ A_.png"_s});
}

void PlotButtonsTest::whatCannotBeSavedIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFull");
    QTest::addColumn<QString>("reason");
    QTest::newRow("full disk, PNG") << u"plot.png"_s << true << u"the file would be too large"_s;
    QTest::newRow("full disk, SVG") << u"plot.svg"_s << true << u"the file would be too large"_s;
    QTest::newRow("no permission") << u"plot.png"_s << false << u"permission denied"_s;
    QTest::newRow("no such folder") << u"none/plot.png"_s << true << u"there is no such file"_s;
    QTest::newRow("another format") << u"plot.gif"_s << true << u"ends with “.png” or “.svg”"_s;
    QTest::newRow("no ending") << u"plot"_s << true << u"ends with “.png” or “.svg”"_s;
}

void PlotButtonsTest::whatCannotBeSavedIsTold()
{
    QFETCH(QString, name);
    QFETCH(bool, isFull);
    QFETCH(QString, reason);
    QFile before(m_shown->file(u"plot.png"_s));
    QVERIFY(before.open(QFile::WriteOnly));
    before.write("before");
    before.close();
    before.setPermissions(QFile::Permissions(0x6666)); // the folder alone is in the way
    m_shown->questions.chooseFile(m_shown->file(name));
    if (isFull) {
        const FullDisk disk(600);
        QVERIFY(disk.works());
        m_shown->press(u"Save Plot…"_s);
    } else {
        const Refusal readOnly(m_shown->folder.path(), 0555);
        QVERIFY(readOnly.works());
        m_shown->press(u"Save Plot…"_s);
    }
    QCOMPARE(m_shown->questions.told().size(), 1);
    QVERIFY2(m_shown->questions.told().constFirst().contains(reason),
             qPrintable(m_shown->questions.told().constFirst()));
    QCOMPARE(QDir(m_shown->folder.path()).entryList(QDir::Files), QStringList{u"plot.png"_s});
    QCOMPARE(Test::contents(before.fileName()), QByteArray("before"));
}

void PlotButtonsTest::whoDoesNotChooseAFileSavesNothing()
{
    m_shown->questions.chooseFile(QString());
    m_shown->press(u"Save Plot…"_s);
    QVERIFY(QDir(m_shown->folder.path()).isEmpty());
    QCOMPARE(m_shown->questions.told(), QStringList());
}

void PlotButtonsTest::itIsCopied()
{
    QGuiApplication::clipboard()->clear();
    m_shown->press(u"Copy Plot"_s);
    const QImage picture = QGuiApplication::clipboard()->image();
    QVERIFY(picture.width() >= m_shown->view().width());
    QVERIFY(!picture.allGray() || picture.pixelColor(0, 0) == QColor(Qt::white));
}

void PlotButtonsTest::itIsPrinted()
{
    m_shown->plot.resize(350, 400); // smaller than what reads well on paper
    QCoreApplication::processEvents();
    m_shown->questions.printTo(m_shown->file(u"plot.pdf"_s));
    m_shown->press(u"Print Plot…"_s);
    QCOMPARE(m_shown->questions.told(), QStringList());
    QCOMPARE(m_shown->questions.proposed(), QStringList{u"Capacity used of Pack A"_s});
    const QByteArray pdf = Test::contents(m_shown->file(u"plot.pdf"_s));
    QVERIFY(pdf.startsWith("%PDF"));
    QVERIFY(pdf.contains("/Font"));
    QCOMPARE(m_shown->chart().size().toSize(), m_shown->view().size());
}

void PlotButtonsTest::whatCannotBePrintedIsTold()
{
    m_shown->questions.printTo(m_shown->file(u"none/plot.pdf"_s));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"."_s));
    m_shown->press(u"Print Plot…"_s);
    QCOMPARE(m_shown->questions.told().size(), 1);
    QVERIFY(m_shown->questions.told().constFirst().contains(u"was not printed"_s));
    m_shown->questions.printTo(QString()); // the user does not print
    m_shown->press(u"Print Plot…"_s);
    QCOMPARE(m_shown->questions.told().size(), 1);
}

void PlotButtonsTest::withoutAPlotTheTableCanBePrinted()
{
    const auto button = [this](const QString &caption) { return Panel::button(m_shown->plot, caption); };
    QVERIFY(button(u"Print Plot…"_s) && button(u"Print Table…"_s));
    Battery battery = m_shown->flown();
    battery.discharges.clear();
    m_shown->show(battery);
    QVERIFY(!button(u"Save Plot…"_s) && !button(u"Copy Plot"_s) && !button(u"Print Plot…"_s));
    QVERIFY(button(u"Print Table…"_s));
    m_shown->show(m_shown->flown());
    QVERIFY(button(u"Print Plot…"_s));
}

QTEST_MAIN(PlotButtonsTest)
#include "tst_plotbuttons.moc"
