// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plugin/rotavexplugin.h"

#include <QStringList>
#include <QTranslator>

class QLocale;

namespace Host {

/**
 * The languages that the program speaks: its window, the logbook's and Qt's own texts. A language is there
 * when its translation is among the resources. Numbers and dates stay as the system writes them.
 */
class Languages final : public RotavexPlugin
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Languages)

public:
    explicit Languages(QObject *parent = nullptr);

    /** The codes of the languages that are there, "de" and so on, in their order. */
    static QStringList all();
    /** What a language is called by those who speak it. */
    static QString nameOf(const QString &code);
    /** The first language that the user's system wishes and that is there; English where there is none. */
    static QString ofSystem();

    /** What the user has chosen; empty where it is to be the system's. */
    static QString chosen();
    /** Speaks a language from now on, and at the next start, too; with an empty code the system's. */
    void choose(const QString &code);

    /** The code of the language that is spoken. */
    QString spoken() const { return m_spoken; }
    /** Speaks what the user has chosen. */
    void speakChosen();
    /** Speaks a language, without remembering it. */
    void speak(const QString &code);

    /** There are none. */
    void discoverDevices(bool flag) override;

private:
    void speakQt(const QLocale &locale);

    QTranslator m_qt;
    QString m_spoken;
};

} // namespace Host
