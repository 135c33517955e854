// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/cataloguefile.h"

#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/dataprocessor.h"

#include <QCoreApplication>
#include <QFile>
#include <QMetaObject>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

QString unwritten()
{
    return QCoreApplication::translate("CatalogueFile", "the disk took only a part of it");
}

/** A folder for one document that nobody else sees. */
class Scratch
{
public:
    QString path() const { return m_folder.path(); }
    /** Why it cannot be used, a clause; empty when it can. */
    QString problem() const { return m_folder.isValid() ? QString() : m_folder.errorString(); }

    QString put(const QByteArray &document)
    {
        QFile file(dataFile());
        if (!file.open(QFile::WriteOnly))
            return file.errorString();
        return file.write(document) == document.size() && file.flush() ? QString() : unwritten();
    }

    /** What was saved here. A save is silent: one that was cut off, or left no file, is found out by its end.
     */
    CatalogueFile::Saved take()
    {
        QFile file(dataFile());
        if (!file.open(QFile::ReadOnly))
            return {{}, file.errorString()};
        const QByteArray document = file.readAll();
        const bool isWhole = document.endsWith("</Voltbok>\n"_ba) || document.endsWith("<Voltbok/>\n"_ba);
        return isWhole ? CatalogueFile::Saved{document, {}} : CatalogueFile::Saved{{}, unwritten()};
    }

    /** Empties the folder, so that what was put there is not taken for what was saved. */
    void clear() { QFile::remove(dataFile()); }

private:
    QString dataFile() const { return m_folder.filePath(u"voltbok.xml"_s); }

    QTemporaryDir m_folder;
};

void loadAndSaveIn(Scratch &scratch)
{
    DataProcessor processor;
    processor.setBasePath(scratch.path());
    QList<QString> locations;
    QList<ModelWidget *> models;
    QList<BatteryWidget *> batteries;
    processor.getLocationsFromData(locations);
    processor.getModelWidgetsFromData(models);
    processor.getBatteryWidgetsFromData(batteries);
    scratch.clear();
    processor.addData(batteries, models, locations);
    qDeleteAll(batteries);
    qDeleteAll(models);
}

} // namespace

CatalogueFile::Saved CatalogueFile::loadAndSave(const QByteArray &document)
{
    Scratch scratch;
    QString problem = scratch.problem();
    if (problem.isEmpty())
        problem = scratch.put(document);
    if (!problem.isEmpty())
        return {{}, problem};
    loadAndSaveIn(scratch);
    return scratch.take();
}

QByteArray CatalogueFile::emptyDocument()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE Voltbok>\n<Voltbok/>\n"_ba;
}

CatalogueFile::Saved CatalogueFile::heldBy(QObject &logbook, const QString &folder)
{
    Scratch scratch;
    auto *processor = logbook.findChild<DataProcessor *>();
    if (!scratch.problem().isEmpty() || !processor)
        return {{}, scratch.problem()};
    processor->setBasePath(scratch.path());
    QMetaObject::invokeMethod(&logbook, "writeDataWithDataprocessor", Qt::DirectConnection);
    processor->setBasePath(folder);
    return scratch.take();
}

} // namespace Host
