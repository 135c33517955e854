// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/cataloguefile.h"

#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/dataprocessor.h"

#include <QFile>
#include <QMetaObject>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** A folder for one document that nobody else sees. */
class Scratch
{
public:
    QString path() const { return m_folder.path(); }
    bool works() const { return m_folder.isValid(); }
    QString problem() const { return m_folder.errorString(); }

    QString put(const QByteArray &document)
    {
        QFile file(dataFile());
        const bool written =
            file.open(QFile::WriteOnly) && file.write(document) == document.size() && file.flush();
        return written ? QString() : file.errorString();
    }

    CatalogueFile::Saved take()
    {
        QFile file(dataFile());
        if (!file.open(QFile::ReadOnly))
            return {{}, file.errorString()};
        return {file.readAll(), {}};
    }

private:
    QString dataFile() const { return m_folder.filePath(u"voltbok.xml"_s); }

    QTemporaryDir m_folder;
};

void loadAndSaveIn(const QString &folder)
{
    DataProcessor processor;
    processor.setBasePath(folder);
    QList<QString> locations;
    QList<ModelWidget *> models;
    QList<BatteryWidget *> batteries;
    processor.getLocationsFromData(locations);
    processor.getModelWidgetsFromData(models);
    processor.getBatteryWidgetsFromData(batteries);
    processor.addData(batteries, models, locations);
    qDeleteAll(batteries);
    qDeleteAll(models);
}

} // namespace

CatalogueFile::Saved CatalogueFile::loadAndSave(const QByteArray &document)
{
    Scratch scratch;
    if (!scratch.works())
        return {{}, scratch.problem()};
    const QString problem = scratch.put(document);
    if (!problem.isEmpty())
        return {{}, problem};
    loadAndSaveIn(scratch.path());
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
    if (!scratch.works() || !processor)
        return {{}, scratch.problem()};
    processor->setBasePath(scratch.path());
    const bool saved =
        QMetaObject::invokeMethod(&logbook, "writeDataWithDataprocessor", Qt::DirectConnection);
    processor->setBasePath(folder);
    return saved ? scratch.take() : Saved{{}, scratch.problem()};
}

} // namespace Host
