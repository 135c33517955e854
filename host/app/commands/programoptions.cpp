// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/command.h"
#include "host/window/mainwindow.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

} // namespace

QList<ProgramOption> programOptions()
{
    const QStringList pages = MainWindow::pageNames();
    return {
        {{u"data"_s, u"DIR"_s, Text::tr("Keep the logbook in DIR."), ValueKind::Path}, true},
        {{u"demo"_s, {}, Text::tr("Open a sample logbook, in a folder of its own that keeps your changes.")},
         true},
        {{u"reset-demo"_s, {}, Text::tr("Reset the sample logbook, then open it.")}},
        {{u"screenshot"_s, u"FILE"_s,
          Text::tr("Draw the window into the PNG file FILE and exit; needs no display."), ValueKind::Path}},
        {{u"page"_s, u"NAME"_s, Text::tr("Show the page or tab NAME: %1.").arg(pages.join(u", "_s)),
          ValueKind::Text, pages}},
        {{u"help"_s, {}, Text::tr("Show this help."), ValueKind::None, {}, false, false, u"h"_s}, true},
        {{u"version"_s, {}, Text::tr("Show the version."), ValueKind::None, {}, false, false, u"v"_s}}};
}

} // namespace Host
