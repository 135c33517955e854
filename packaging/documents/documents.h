// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/** What is installed about the command line, made from the table of commands. */
namespace Documents {

/** The manual page, in the language of man. */
QByteArray manualPage(const QString &version);

/** What completes the command line in bash. */
QByteArray bashCompletion();

} // namespace Documents
