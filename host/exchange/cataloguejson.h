// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/flownbatteries.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>

namespace Host {

/** Takes what is written, piece by piece. @return false when nothing more is wanted. */
using ByteSink = std::function<bool(const QByteArray &)>;

/**
 * The records of a logbook as JSON in UTF-8 for scripts: keys in English, times local, null for what is
 * missing, everything in the order of the file. It is written piece by piece, so that a large logbook needs
 * no second copy of itself.
 */
class CatalogueJson final
{
    Q_DISABLE_COPY_MOVE(CatalogueJson)

public:
    /** @param whole tells which batteries a flight was made with, whatever is shown of it. */
    CatalogueJson(const Catalogue &whole, ByteSink sink);

    /** Each of these writes one document about what is in @p shown. @return false when the sink has refused
     * something. */
    bool writeExport(const Catalogue &shown);
    bool writeBatteries(const Catalogue &shown);
    bool writeModels(const Catalogue &shown);
    bool writeFlights(const Catalogue &shown);
    bool writeDischarges(const Catalogue &shown);
    bool writeLocations(const Catalogue &shown);

private:
    void locations(const Catalogue &shown);
    void batteries(const Catalogue &shown);
    void models(const Catalogue &shown);
    void battery(const Battery &battery);
    void model(const Model &model);
    void discharge(const Battery &battery, const Discharge &discharge);
    void flight(const Flight &flight);

    template <typename List, typename Function>
    void array(const List &list, Function writeOne);
    void put(const char *text) { m_buffer += text; }
    bool passOn();
    bool finish();

    ByteSink m_sink;
    const FlownBatteries m_flown;
    QList<QByteArray> m_names; ///< of all batteries, quoted
    QByteArray m_buffer;
    bool m_isWanted = true;
};

} // namespace Host
