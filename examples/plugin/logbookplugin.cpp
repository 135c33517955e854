// SPDX-License-Identifier: GPL-3.0-or-later
#include "logbookplugin.h"

#include "gui/voltbokgui.h"

#include <QMenu>

using namespace Qt::Literals::StringLiterals;

LogbookPlugin::LogbookPlugin(const QString &folder, QObject *parent)
    : RotavexPlugin(u"Logbook"_s, QIcon(), tr("Batteries and flights"), u"© 2026 you"_s, u":/translations/"_s,
                    parent)
    , m_folder(folder)
{
    registerTranslator(u"logbookplugin"_s); // logbookplugin_de.qm, for German
}

LogbookPlugin::~LogbookPlugin() = default;

void LogbookPlugin::addTo(QMenu *menu)
{
    menu->addAction(icon(), tr("Battery &Logbook"), this, &LogbookPlugin::showLogbook);
}

void LogbookPlugin::showLogbook()
{
    if (!m_window) {
        m_window = std::make_unique<VoltbokGui>();
        connect(m_window.get(), &VoltbokGui::closeVoltbokGui, m_window.get(), &QWidget::close);
        m_window->changeStoragePath(m_folder);
    }
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void LogbookPlugin::discoverDevices(bool) {}
