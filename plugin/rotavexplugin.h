// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "voltbok_export.h"

#include <QIcon>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

class QLocale;
class QSettings;
class QTranslator;
class RotavexDevice;
class RotavexOrchestrator;

// Both types belong to the host: this class passes pointers to them and never looks inside.
Q_DECLARE_OPAQUE_POINTER(RotavexDevice *)
Q_DECLARE_OPAQUE_POINTER(RotavexOrchestrator *)

/**
 * Base class of every plugin of the host.
 *
 * It carries the plugin's identity, one translator per translation file, and access to the settings store
 * that the host and all its plugins share. Everything here runs on the user-interface thread; nothing reports
 * a failure: a missing translation leaves the source texts, a missing settings group has no keys.
 */
class VOLTBOK_EXPORT RotavexPlugin : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RotavexPlugin)

public:
    /**
     * Stores the plugin's identity and registers the translator "rotavexplugin", without loading a language.
     *
     * @param name also the name of the plugin's group in the settings store.
     * @param translationDirectory where the plugin's translation files are looked for first; an empty one
     *        switches language switching off.
     * @param icon how the host shows the plugin; may be null.
     * @param description what the plugin does, for people.
     * @param copyright who may be thanked, for people.
     * @param parent owns the plugin where it is given.
     */
    RotavexPlugin(const QString &name, const QIcon &icon, const QString &description,
                  const QString &copyright, const QString &translationDirectory, QObject *parent = nullptr);
    ~RotavexPlugin() override;

    /** The name that the plugin was made with. */
    QString name() const;
    /** The icon that the plugin was made with; may be null. */
    const QIcon &icon() const;
    /** The description that the plugin was made with, in the language of that moment. */
    QString description() const;
    /** The copyright that the plugin was made with. */
    QString copyright() const;

    /** Keeps the host's orchestrator, which stays the host's; null until the host sets it. */
    void setOrchestrator(RotavexOrchestrator *orchestrator);
    /** The host's orchestrator; null until the host has set it. */
    RotavexOrchestrator *orchestrator() const;

    /** Adds an empty translator for the translation file with this base name, unless there is one already. */
    void registerTranslator(const QString &name);

    /**
     * Reloads and reinstalls every registered translator for a language.
     *
     * A file that is missing in the plugin's own directory is replaced by the base class's file from the
     * host's resources; without either, the translator stays removed and the source texts show.
     */
    void switchLanguage(const QLocale &locale);

    /**
     * Copies every key of a settings group of this plugin onto @p target as a dynamic property.
     *
     * @return the keys of the group; empty when there is no such group.
     */
    QStringList loadSettings(const QString &group, QObject *target);

    /** Writes one value into a settings group of this plugin and flushes the store. */
    void saveSetting(const QString &group, const QString &key, QVariant value);

    /**
     * The settings store of the host and all its plugins: organisation "tarnwheel", application "Rotavexm".
     *
     * It exists as soon as the library is loaded and is never deleted.
     */
    static QSettings *rotavexSettings;

Q_SIGNALS:
    /** A device, named by its identifier, has been taken for exclusive use. */
    void deviceLocked(const QString &uuid);
    /** A device has been found. */
    void deviceDiscovered(RotavexDevice *device);
    /** A device has gone away. */
    void deviceLost(RotavexDevice *device);

public Q_SLOTS:
    /** Looks for devices; what the flag means is the concrete plugin's affair. */
    virtual void discoverDevices(bool flag = false) = 0;

private:
    RotavexOrchestrator *m_orchestrator = nullptr;
    QString m_name;
    QIcon m_icon;
    QString m_description;
    QString m_copyright;
    // These two are known by their names, without the m_ of the others.
    QString translationDirectory;
    QMap<QString, QTranslator *> translators; // by base name of the file; children of the plugin
};
