// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace Host::Console {

/**
 * Makes the standard streams safe to write to, before anything else is opened: a reader that goes away ends
 * nothing, and a stream that is closed is not mistaken for the file that would be opened in its place.
 */
void prepare();

/**
 * Says on standard error, in one line, what is wrong. Control characters are left out: a text may come from
 * a file that somebody else wrote, and a terminal obeys them.
 */
void complain(const QString &problem);

/** Prints a text on standard output. @return false when it could not be written, which was then said; a
 * reader that has read enough and gone away is no failure. */
bool print(const QString &text);

/** Standard output, written piece by piece. */
class Output final
{
    Q_DISABLE_COPY_MOVE(Output)

public:
    Output() = default;

    /** @return false when nothing more is taken, for whatever reason. */
    bool write(const QByteArray &bytes);
    /** Says what went wrong. @return the program's exit status; a reader that went away is no failure. */
    int finish();

private:
    int m_reason = 0; ///< of the system, why nothing more is taken
};

} // namespace Host::Console
