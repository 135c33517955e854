// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plugin/rotavexplugin.h"

#include <QIcon>
#include <QList>
#include <QString>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/** The least that a plugin is: it notes every discovery that is asked of it. */
class TestPlugin : public RotavexPlugin
{
public:
    using RotavexPlugin::RotavexPlugin;
    void discoverDevices(bool flag) override { discoveries.append(flag); }

    static std::unique_ptr<TestPlugin> make(const QString &translations = u"/nowhere"_s)
    {
        return std::make_unique<TestPlugin>(u"logbook"_s, QIcon(), u"A logbook"_s, u"Nobody"_s, translations);
    }

    QList<bool> discoveries;
};
