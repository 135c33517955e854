// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/uniquename.h"

QString uniqueName(const QString &base, const QStringList &existing)
{
    QString candidate = base;
    int counter = 0;
    for (qsizetype i = 0; i < existing.size(); ++i) {
        if (existing.at(i) != candidate)
            continue;
        candidate = base + u'_' + QString::number(++counter);
        i = 0; // intentional: the search goes on at index 1, not at index 0
    }
    return candidate;
}
