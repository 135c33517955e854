// SPDX-License-Identifier: GPL-3.0-or-later
#include "barebook.h"
#include "benchmarks.h"
#include "catalogue.h"
#include "measure.h"
#include "report.h"

#include "host/data/cataloguefile.h"
#include "host/exchange/exporting.h"
#include "host/exchange/xlsx.h"

#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

Host::Catalogue valuesOf(int entries)
{
    const QTemporaryDir folder;
    Catalogue::withEntries(entries).writeTo(folder.path());
    QFile file(folder.filePath(u"voltbok.xml"_s));
    if (!file.open(QFile::ReadOnly))
        qFatal("The benchmarks cannot read their own file.");
    return Host::CatalogueFile::load(file.readAll()).catalogue;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        qFatal("The benchmarks cannot read what was exported.");
    return file.readAll();
}

/** The same bytes, in one piece and as stored strings: what stands between these characters, each with its
 * own. */
struct Stored
{
    Stored(const QByteArray &text, const QByteArray &ends)
        : bytes(text)
    {
        const QString characters = QString::fromUtf8(text);
        qsizetype start = 0;
        for (qsizetype i = 0; i < characters.size(); ++i) {
            if (!ends.contains(characters.at(i).toLatin1()) && i + 1 < characters.size())
                continue;
            strings.append(characters.mid(start, i + 1 - start));
            start = i + 1;
        }
    }

    QByteArray bytes;
    QStringList strings;
};

/** A file that is put in its place when it is whole, as an export is. */
class WholeFile
{
public:
    explicit WholeFile(const QString &path)
        : file(path)
    {
        if (!file.open(QFile::WriteOnly))
            qFatal("The benchmarks cannot write.");
    }
    ~WholeFile() { file.commit(); }
    Q_DISABLE_COPY_MOVE(WholeFile)

    QSaveFile file;
};

/** One export with all its files, and what its bytes take without it. */
class Comparison
{
public:
    Comparison(const Host::Catalogue &catalogue, Host::ExportFormat format)
        : m_catalogue(catalogue)
    {
        m_order.format = format;
        m_order.path = m_folder.filePath(u"export"_s);
        m_order.replaces = true;
        run();
        const QByteArray ends = format == Host::ExportFormat::Json ? ":,\n" : ",\n";
        for (const QString &path : Host::exportFiles(format, m_order.path))
            m_stored.append(Stored(contents(path), ends));
    }

    double run()
    {
        return Measure::threadSeconds([this] {
            if (!Host::exportLogbook(m_catalogue, m_order).problem.isEmpty())
                qFatal("The benchmarks cannot export.");
        });
    }

    /** One after the other, as the bare writer of data files does it. */
    double writeStrings()
    {
        return Measure::threadSeconds([this] {
            for (const Stored &stored : m_stored) {
                WholeFile whole(m_folder.filePath(u"bare"_s));
                QTextStream stream(&whole.file);
                for (const QString &string : stored.strings)
                    stream << string;
            }
        });
    }

    double writeBytes()
    {
        return Measure::threadSeconds([this] {
            for (const Stored &stored : m_stored) {
                WholeFile(m_folder.filePath(u"bare"_s)).file.write(stored.bytes);
            }
        });
    }

private:
    const Host::Catalogue m_catalogue;
    const QTemporaryDir m_folder;
    Host::ExportOrder m_order;
    QList<Stored> m_stored;
};

void measureText(Report &report, const Benchmarks::Plan &plan, const Host::Catalogue &catalogue, int entries,
                 Host::ExportFormat format)
{
    Comparison comparison(catalogue, format);
    const QString work =
        u"%1 export, %2 entries"_s.arg(format == Host::ExportFormat::Json ? u"JSON"_s : u"CSV"_s)
            .arg(entries);
    const Measure::Run run = [&comparison] { return comparison.run(); };
    report.compare(
        work, u"bare writer, same bytes"_s, plan.rounds(entries), run,
        [&comparison] { return comparison.writeStrings(); }, 1.5);
    report.compare(work, u"the finished bytes, copied into files"_s, plan.rounds(entries), run,
                   [&comparison] { return comparison.writeBytes(); });
}

double exportBook(const Host::Catalogue &catalogue, const QString &path)
{
    return Measure::threadSeconds([&] {
        Host::ExportOrder order;
        order.path = path;
        order.replaces = true;
        if (!Host::exportLogbook(catalogue, order).problem.isEmpty())
            qFatal("The benchmarks cannot export.");
    });
}

/** How the heap grows from the first thousand rows to the last. */
double growthOf(const Host::Catalogue &catalogue)
{
    constexpr double KiB = 1024.0;
    qint64 first = 0;
    qint64 most = 0;
    Host::Xlsx::write(
        catalogue, catalogue, [](const QByteArray &) { return true; },
        [&](qsizetype) {
            const qint64 now = Measure::heapInUse();
            first = first == 0 ? now : first;
            most = std::max(most, now);
            return true;
        });
    return static_cast<double>(most - first) / KiB;
}

} // namespace

void Benchmarks::exports(Report &report, const Plan &plan)
{
    for (const int entries : plan.sizes()) {
        const Host::Catalogue catalogue = valuesOf(entries);
        measureText(report, plan, catalogue, entries, Host::ExportFormat::Csv);
        measureText(report, plan, catalogue, entries, Host::ExportFormat::Json);
        const QTemporaryDir folder;
        const BareBook bare(catalogue);
        report.compare(
            u"XLSX export, %1 entries"_s.arg(entries), u"the same cells, written by libxlsxwriter alone"_s,
            std::max(plan.rounds(entries) / 3, 3),
            [&] { return exportBook(catalogue, folder.filePath(u"book.xlsx"_s)); },
            [&] { return bare.write(folder.filePath(u"bare.xlsx"_s)); }, 1.2);
        report.addValue(u"memory of an XLSX export of %1 entries"_s.arg(entries),
                        u"heap, from the first thousand rows to the last"_s, growthOf(catalogue), u"KiB"_s,
                        512.0);
    }
}
