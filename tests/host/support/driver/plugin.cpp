// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/driver/driver.h"

#include <QGenericPlugin>

/** Loaded into the program, unchanged, by QT_PLUGIN_PATH and QT_QPA_GENERIC_PLUGINS=voltbokdriver. */
class DriverPlugin final : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "driver.json")

public:
    QObject *create(const QString &name, const QString &arguments) override
    {
        Q_UNUSED(name)
        Q_UNUSED(arguments)
        return new Driver;
    }
};

#include "plugin.moc"
