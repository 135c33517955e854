// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plugin/rotavexplugin.h"

#include <memory>

class QMenu;
class VoltbokGui;

/** Offers the logbook of a folder in a menu of its host. */
class LogbookPlugin final : public RotavexPlugin
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LogbookPlugin)

public:
    /** @param folder of the logbook; it need not exist yet. */
    explicit LogbookPlugin(const QString &folder, QObject *parent = nullptr);
    ~LogbookPlugin() override;

    /** Adds what the plugin offers, in the language of the moment. */
    void addTo(QMenu *menu);

    /** Opens the logbook, or brings it to the front. The house closes it. */
    void showLogbook();

    /** There are none: the logbook writes down what pilots tell it. */
    void discoverDevices(bool flag) override;

private:
    const QString m_folder;
    std::unique_ptr<VoltbokGui> m_window;
};
