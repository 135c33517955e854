// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/** What is installed beside the program: what the table of commands says, and its icons. */
namespace Documents {

/** The manual page, in the language of man. */
QByteArray manualPage(const QString &version);

/** What completes the command line in bash. */
QByteArray bashCompletion();

/** The sizes in which desktops want an icon, in pixels. */
inline const QList<int> IconSizes{16, 22, 24, 32, 48, 64, 128, 256};

/** The program's icon of so many pixels, as PNG. */
QByteArray icon(int size);

} // namespace Documents
