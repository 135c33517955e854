// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QStringList>

/** The whole catalogue of a data file, read by nothing of the program or its library. */
struct Logbook
{
    struct Battery
    {
        QMap<QString, QString> figures; ///< every element with a text, by its name; the last use apart
        QStringList discharges;         ///< "2026-11-10T21:09:54 376", in file order

        bool operator==(const Battery &other) const
        {
            return figures == other.figures && discharges == other.discharges;
        }
    };
    struct Model
    {
        QMap<QString, QString> figures;
        QStringList batteries;
        QStringList flights; ///< "2026-11-10T21:09:54 Club field"

        bool operator==(const Model &other) const
        {
            return figures == other.figures && batteries == other.batteries && flights == other.flights;
        }
    };

    bool whole = false; ///< the document ends well
    QStringList locations;
    QMap<QString, Battery> batteries;
    QMap<QString, Model> models;

    bool operator==(const Logbook &other) const
    {
        return locations == other.locations && batteries == other.batteries && models == other.models;
    }

    static Logbook read(const QByteArray &document);
    static Logbook readFile(const QString &path);
};

/** A small logbook in the bytes that a save would give it: three batteries, one model that flies two of them.
 */
QByteArray smallLogbook();
