// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/exporting.h"

#include "host/exchange/cataloguejson.h"
#include "host/exchange/xlsx.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Exporting)
};

QString native(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

bool isOccupied(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink(); // a link to nowhere, too
}

bool isInFolder(ExportFormat format)
{
    return format == ExportFormat::Csv || format == ExportFormat::CsvLocal;
}

/** A folder, with those above it, which are removed again unless they are kept. */
class NewFolder
{
    Q_DISABLE_COPY_MOVE(NewFolder)

public:
    explicit NewFolder(const QString &path)
    {
        for (QString missing = QDir::cleanPath(QDir(path).absolutePath()); !QFileInfo::exists(missing);
             missing = QFileInfo(missing).path())
            m_made.append(missing);
        m_exists = QDir().mkpath(path);
    }
    ~NewFolder()
    {
        for (const QString &path : std::as_const(m_made))
            QDir().rmdir(path);
    }

    bool exists() const { return m_exists; }
    void keep() { m_made.clear(); }

private:
    QStringList m_made; ///< the innermost first
    bool m_exists;
};

/** Files that are written beside their places, and put there together. */
class NewFiles
{
public:
    /** A file that can be written; null where that is not possible. */
    QSaveFile *open(const QString &path)
    {
        m_files.push_back(std::make_unique<QSaveFile>(path));
        QSaveFile *file = m_files.back().get();
        if (file->open(QFile::WriteOnly))
            return file;
        fail(*file);
        return nullptr;
    }

    /** A disk that takes only a part says why when it is given the rest. */
    bool write(QSaveFile &file, const QByteArray &bytes)
    {
        for (qint64 done = 0; done < bytes.size();) {
            const qint64 taken = file.write(bytes.constData() + done, bytes.size() - done);
            if (taken <= 0) {
                fail(file);
                return false;
            }
            done += taken;
        }
        return true;
    }

    void commit()
    {
        for (const auto &file : m_files) {
            if (problem.isEmpty() && !file->flush() && !file->flush())
                fail(*file);
        }
        for (const auto &file : m_files) {
            if (problem.isEmpty() && !file->commit())
                problem = Text::tr("“%1” cannot be put in its place: %2. Export again.")
                              .arg(native(file->fileName()), WholeFile::clause(file->errorString()));
        }
    }

    void fail(const QString &path, const QString &reason)
    {
        problem = Text::tr("“%1” cannot be written: %2. Nothing was exported.").arg(native(path), reason);
    }

    QString problem; ///< the first, a sentence

private:
    void fail(const QSaveFile &file) { fail(file.fileName(), WholeFile::clause(file.errorString())); }

    std::vector<std::unique_ptr<QSaveFile>> m_files;
};

/** The files of one order. */
class Export
{
public:
    Export(const Catalogue &whole, const ExportOrder &order, const Proceed &proceed)
        : m_whole(whole)
        , m_shown(filtered(whole, order.filter))
        , m_order(order)
        , m_proceed(proceed)
    {
    }

    Exported run()
    {
        if (isInFolder(m_order.format))
            writeCsv();
        else if (m_order.format == ExportFormat::Xlsx)
            writeXlsx();
        else
            writeJson();
        if (!m_result.isStopped)
            m_files.commit();
        m_result.problem = m_files.problem;
        return m_result;
    }

private:
    void writeCsv()
    {
        const QStringList names = exportFiles(m_order.format, m_order.path);
        auto name = names.cbegin();
        CsvWriter writer(m_order.format == ExportFormat::Csv ? CsvStyle::plain() : m_order.localStyle,
                         [&](const Table &) { return sinkFor(*name++); });
        const Proceed goOn = [this](qsizetype rows) { return goesOn(rows); };
        writeTables(m_shown, m_whole, writer, goOn);
    }

    void writeJson()
    {
        if (const ByteSink sink = sinkFor(m_order.path))
            CatalogueJson(m_whole, [&](const QByteArray &bytes) {
                return goesOn(0) && sink(bytes);
            }).writeExport(m_shown);
    }

    void writeXlsx()
    {
        const ByteSink sink = sinkFor(m_order.path);
        if (!sink)
            return;
        const Xlsx::Written written = Xlsx::write(m_shown, m_whole, sink, m_proceed);
        m_result.isStopped = written.isStopped;
        m_result.cutTexts = written.cutTexts;
        if (!written.problem.isEmpty())
            m_files.fail(m_order.path, written.problem);
    }

    ByteSink sinkFor(const QString &path)
    {
        QSaveFile *file = m_files.open(path);
        if (!file)
            return {};
        return [this, file](const QByteArray &bytes) { return m_files.write(*file, bytes); };
    }

    bool goesOn(qsizetype rows)
    {
        m_result.isStopped = m_proceed && !m_proceed(rows);
        return !m_result.isStopped;
    }

    const Catalogue &m_whole;
    const Catalogue m_shown;
    const ExportOrder &m_order;
    const Proceed &m_proceed;
    NewFiles m_files;
    Exported m_result;
};

/** What stands in the way of an order, a sentence; empty when nothing does. */
QString obstacle(const ExportOrder &order)
{
    if (order.format == ExportFormat::Xlsx && !Xlsx::isAvailable())
        return Text::tr("This build of Voltbok cannot write XLSX. Choose csv-local for your spreadsheet.");
    const QStringList existing = existingFiles(order.format, order.path);
    if (!existing.isEmpty() && !order.replaces)
        return Text::tr("“%1” exists already. Nothing was exported.").arg(native(existing.first()));
    for (const QString &path : existing) {
        if (!QFileInfo(path).isFile())
            return Text::tr(
                       "“%1” is there already, and is no file that could be replaced. Nothing was exported.")
                .arg(native(path));
    }
    const QFileInfo folder(isInFolder(order.format) ? order.path : QFileInfo(order.path).path());
    if (folder.exists() && !folder.isDir())
        return Text::tr("“%1” is not a folder. Nothing was exported.").arg(native(folder.filePath()));
    if (!folder.exists() && !isInFolder(order.format))
        return Text::tr("There is no folder “%1”. Nothing was exported.").arg(native(folder.filePath()));
    return QString();
}

} // namespace

QStringList exportFiles(ExportFormat format, const QString &path)
{
    if (!isInFolder(format))
        return QStringList{path};
    QStringList files;
    for (const Table &table : exportTables())
        files.append(QDir::cleanPath(QDir(path).filePath(table.name + u".csv"_s)));
    return files;
}

QStringList existingFiles(ExportFormat format, const QString &path)
{
    QStringList files = exportFiles(format, path);
    files.removeIf([](const QString &file) { return !isOccupied(file); });
    return files;
}

Exported exportLogbook(const Catalogue &whole, const ExportOrder &order, const Proceed &proceed)
{
    const QString inTheWay = obstacle(order);
    if (!inTheWay.isEmpty())
        return {inTheWay};
    if (!isInFolder(order.format))
        return Export(whole, order, proceed).run();
    NewFolder folder(order.path);
    if (!folder.exists())
        return {Text::tr("The folder “%1” cannot be made. Nothing was exported.").arg(native(order.path))};
    const Exported exported = Export(whole, order, proceed).run();
    if (exported.problem.isEmpty() && !exported.isStopped)
        folder.keep();
    return exported;
}

} // namespace Host
