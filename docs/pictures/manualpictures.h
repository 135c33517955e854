// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/preferences/languages.h"

#include <QDir>

/** The pictures of the manual in one language, that of the system: "overview.png" are the English ones,
 * "overview_de.png" the German ones. Made after the application from its arguments SAMPLE and DIRECTORY. */
class ManualPictures
{
    Q_DISABLE_COPY_MOVE(ManualPictures)

public:
    ManualPictures();
    ~ManualPictures() = default;

    /** The file of the sample logbook. */
    const QString &sample() const { return m_sample; }
    /** What a pilot writes who speaks the language of the pictures. */
    QString written(const QString &english, const QString &german) const;
    void save(const QPixmap &picture, const QString &name) const;

private:
    Host::Languages m_languages;
    QString m_sample;
    QString m_suffix; // of the files' names
    QDir m_folder;
};
