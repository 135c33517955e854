// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/preferences.h"

#include "plugin/rotavexplugin.h"

#include <QSettings>

namespace {
constexpr QLatin1StringView Group{"SETTINGS"};
}

QVariant Preferences::read(QLatin1StringView key)
{
    QSettings &store = *RotavexPlugin::rotavexSettings;
    store.beginGroup(Group);
    const QVariant value = store.value(key);
    store.endGroup();
    return value;
}

void Preferences::write(QLatin1StringView key, QLatin1StringView value)
{
    QSettings &store = *RotavexPlugin::rotavexSettings;
    store.beginGroup(Group);
    store.setValue(key, QString(value));
    store.endGroup();
}
