// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QByteArray>
#include <QList>
#include <QString>

/** The cells of a workbook, ready to be written, and the least that it takes to write them. */
class BareBook
{
public:
    explicit BareBook(const Host::Catalogue &catalogue);

    /** @return the processor seconds that it took. */
    double write(const QString &path) const;

    struct Cell
    {
        enum Kind { Nothing, Text, Number, Date, Time };

        Kind kind = Nothing;
        QByteArray text;
        double number = 0.0;
    };

    struct Sheet
    {
        QByteArray name;
        int columns = 0;
        QList<Cell> cells; ///< row by row
    };

private:
    QList<Sheet> m_sheets;
};
