// SPDX-License-Identifier: GPL-3.0-or-later
// Goes through the window as a pilot does and saves the pages of the manual as pictures.
#include "gui/voltbokgui.h"
#include "records/batterywidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTemporaryDir>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

class Tour
{
public:
    Tour(const QString &storage, const QString &pictures)
        : m_pictures(pictures)
    {
        m_window.changeStoragePath(storage);
        m_window.show();
    }

    void go();

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
    void shoot(const QString &name);

    VoltbokGui m_window;
    QDir m_pictures;
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

/** Fills the page in, but for the OK. */
void Tour::dischargeFirstCharged()
{
    const auto cards = m_window.findChildren<BatteryWidget *>();
    for (BatteryWidget *card : cards) {
        if (!card->isVisible() || !card->getBatteryCharged())
            continue;
        card->findChild<QAbstractButton *>()->click();
        find<QTimeEdit>(u"sb_log_duration"_s)->setTime(QTime(0, 6, 30));
        find<QSpinBox>(u"sb_log_temp"_s)->setValue(18);
        find<QPlainTextEdit>(u"ptext_log_notes"_s)->setPlainText(u"First flight with the new tail blades."_s);
        return;
    }
    qFatal("The sample logbook has no charged battery on its overview.");
}

void Tour::shoot(const QString &name)
{
    QCoreApplication::processEvents(); // lays out what was shown
    const QString file = m_pictures.filePath(name + u".png"_s);
    if (!m_window.grab().save(file, "PNG"))
        qFatal("Cannot write %s.", qPrintable(file));
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        qFatal("usage: picturemaker SAMPLE DIRECTORY");

    const QTemporaryDir storage; // the sample itself is never written
    if (!QFile::copy(arguments.at(1), storage.filePath(u"voltbok.xml"_s)))
        qFatal("Cannot copy %s.", qPrintable(arguments.at(1)));
    Tour(storage.path(), arguments.at(2)).go();
    return EXIT_SUCCESS;
}
