// SPDX-License-Identifier: GPL-3.0-or-later
// Goes through the window as a pilot does and saves the pages of the manual as pictures.
#include "docs/pictures/manualpictures.h"
#include "gui/voltbokgui.h"
#include "records/batterywidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFile>
#include <QList>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTemporaryDir>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

class Tour
{
public:
    Tour(const QString &storage, const ManualPictures &pictures)
        : m_pictures(pictures)
    {
        m_window.changeStoragePath(storage);
        m_window.show();
    }

    void go();
    /** A click on a battery that is discharged, and one more: before, between and after, side by side. */
    void clickTwice();

private:
    template <typename Widget>
    Widget *find(const QString &name)
    {
        auto *widget = m_window.findChild<Widget *>(name);
        if (!widget)
            qFatal("The window has no %s.", qPrintable(name));
        return widget;
    }

    void click(const QString &button) { find<QAbstractButton>(button)->click(); }
    void openFromMenu(const QString &button);
    void dischargeFirstCharged();
    QAbstractButton *firstButton(bool charged);
    QPixmap picture();
    void shoot(const QString &name) { m_pictures.save(picture(), name); }

    VoltbokGui m_window;
    const ManualPictures &m_pictures;
};

void Tour::go()
{
    shoot(u"overview"_s);
    click(u"pb_options"_s);
    shoot(u"options"_s);
    click(u"pb_options"_s);

    openFromMenu(u"pb_logbook"_s);
    click(u"pb_logview_prev"_s);
    shoot(u"logbook"_s);

    openFromMenu(u"pb_chart"_s);
    shoot(u"chart-mah"_s);
    click(u"rb_showAmps"_s);
    shoot(u"chart-a"_s);
    click(u"rb_showC"_s);
    shoot(u"chart-c"_s);

    openFromMenu(u"pb_mode"_s);
    click(u"rb_modeAdvanced"_s);
    shoot(u"mode"_s);

    openFromMenu(u"pb_edit_data"_s);
    shoot(u"edit"_s);
    click(u"pb_options"_s);

    dischargeFirstCharged();
    shoot(u"capture"_s);
}

void Tour::openFromMenu(const QString &button)
{
    while (!find<QAbstractButton>(button)->isVisible())
        click(u"pb_options"_s);
    click(button);
}

void Tour::clickTwice()
{
    QAbstractButton *button = firstButton(false);
    QList<QPixmap> pictures{picture()};
    for (int click = 0; click < 2; ++click) {
        button->click();
        pictures.append(picture());
    }
    const QSize size = pictures.first().size();
    constexpr int Margin = 4;
    QPixmap all((size.width() + 2 * Margin) * static_cast<int>(pictures.size()), size.height() + 2 * Margin);
    all.fill(Qt::white);
    QPainter painter(&all);
    for (qsizetype i = 0; i < pictures.size(); ++i)
        painter.drawPixmap(Margin + static_cast<int>(i) * (size.width() + 2 * Margin), Margin,
                           pictures.at(i));
    painter.end();
    m_pictures.save(all, u"clicks"_s);
}

/** The button of the first card on show whose battery is in this state. */
QAbstractButton *Tour::firstButton(bool charged)
{
    const auto cards = m_window.findChildren<BatteryWidget *>();
    for (BatteryWidget *card : cards) {
        if (card->isVisible() && card->getBatteryCharged() == charged)
            return card->findChild<QAbstractButton *>();
    }
    qFatal("The sample logbook has no such battery on its overview.");
}

/** Fills the page in, but for the OK. */
void Tour::dischargeFirstCharged()
{
    firstButton(true)->click();
    find<QTimeEdit>(u"sb_log_duration"_s)->setTime(QTime(0, 6, 30));
    find<QSpinBox>(u"sb_log_temp"_s)->setValue(18);
    find<QPlainTextEdit>(u"ptext_log_notes"_s)
        ->setPlainText(m_pictures.written(u"First flight with the new tail blades."_s,
                                          u"Erster Flug mit den neuen Heckblättern."_s));
}

QPixmap Tour::picture()
{
    QCoreApplication::processEvents(); // lays out what was shown
    return m_window.grab();
}

/** The sample in a folder of its own; the sample itself is never written. */
QString copyTo(const QTemporaryDir &folder, const QString &sample)
{
    if (!QFile::copy(sample, folder.filePath(u"voltbok.xml"_s)))
        qFatal("Cannot copy %s.", qPrintable(sample));
    return folder.path();
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const ManualPictures pictures;
    const QTemporaryDir folderOfClicks; // in Quick mode, which the other one leaves
    Tour(copyTo(folderOfClicks, pictures.sample()), pictures).clickTwice();
    const QTemporaryDir folder;
    Tour(copyTo(folder, pictures.sample()), pictures).go();
    return EXIT_SUCCESS;
}
