// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFileInfo>
#include <QObject>
#include <QStringList>
#include <QTimer>

/**
 * Drives the window from inside the program as a pilot would, by lines on standard input or in the file that
 * VOLTBOK_SCRIPT names. It knows what anybody sees: widgets by their names and texts.
 *
 * Each line is one command, its words separated by tabs:
 *
 *     click BATTERY                charges or discharges, by the button of its card
 *     press BUTTON                 any button that can be pressed now, by its name or a part of its text;
 *                                  leads to what was on show before it was pressed, as of "messages"
 *     type FIELD TEXT, choose CHOOSER TEXT
 *     add-location NAME, delete-location NAME, add-battery NAME, delete-battery NAME
 *     assign MODEL BATTERY, unassign MODEL BATTERY
 *     undo, redo
 *     edit NUMBER                  gives the flight in this row of the table another location
 *     import PATH                  drops a log of a radio on the window
 *     restore                      the oldest of the copies
 *     merge                        the version that is offered
 *     storm PAUSE SEED FOLDER      all of these at random, with so many ms between them, for ever; the logs
 *                                  are those in the folder
 *     messages                     what the program says beside the logbook and in boxes
 *     wait MS
 *     quit                         closes the window
 *
 * On standard output stands one line for what begins and one for what was done, by then on disk as far as the
 * window knows: the time in ms, "begin", "done" or "failed", the command, its words, what it led to. A line
 * with "now" says what exactly is done by a command, where that is only known in a box. A box that can only
 * be agreed to is closed where it is in the way of a command, and its texts reported as "box".
 */
class Driver final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Driver)

public:
    Driver();

private:
    void start();
    void readInput();
    void step();
    void storm(int pause);
    QStringList randomCommand();

    QByteArray m_input;
    QList<QStringList> m_commands;
    QTimer m_next;           // for the first of them
    qint64 m_deadline = 0;   // until when it may wait for its widget; 0 before it was tried
    QStringList m_locations; // that the storm has added
    QStringList m_batteries;
    bool m_hasUndone = false; // by its last command
    QFileInfoList m_logs;     // for the storm to import
};
