// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the import dialog that reads logs.
#include "host/window/columnsdialog.h"
#include "host/window/importdialog.h"
#include "host/window/importmodel.h"
#include "host/window/openlogbook.h"

#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QTableView>
#include <QThread>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {

void ImportDialog::add(const QStringList &paths)
{
    QStringList all = m_paths;
    for (const QString &path : paths) {
        if (!path.isEmpty() && !all.contains(path))
            all.append(path);
    }
    if (all != m_paths)
        start(all);
}

/** The thread gets values that nobody changes: the catalogue of one version of the file. */
void ImportDialog::start(const QStringList &paths)
{
    Reading reading{paths, m_logbook.catalogue(), m_logbook.measured(), {}, {}};
    if (!reading.catalogue)
        return say(tr("The logbook cannot be read now. Free some space, and try again."));
    say(QString());
    m_isStopped = false;
    m_progress->show();
    m_thread.reset(QThread::create([this, reading, mappings = m_mappings]() mutable {
        const LogReading::Options options{[this] { return !m_isStopped; }, mappings};
        reading.logs = LogReading::read(LogReading::paths(reading.paths, options), reading.measured, options);
        MatchOptions matching;
        matching.goOn = options.goOn;
        if (!m_isStopped)
            reading.clockOffset = clockOffset(reading.logs, *reading.catalogue, reading.measured, matching);
        QMetaObject::invokeMethod(this, [this, reading] { finish(reading); });
    }));
    refresh();
    m_thread->start();
}

void ImportDialog::finish(const Reading &reading)
{
    m_thread->wait();
    m_thread.reset();
    m_progress->hide();
    if (m_isStopped) {
        refresh();
        return say(tr("The reading was stopped. What was read before is still listed."));
    }
    settleColumns(reading);
}

/** Asks for one set of columns after the other; by those that were chosen the logs are read once more. */
void ImportDialog::settleColumns(const Reading &reading)
{
    const auto needsColumns = [](const ImportedLog &log) {
        return log.log.needsMapping && log.log.status == LogStatus::Read;
    };
    for (const ImportedLog &log : reading.logs) {
        const QString &key = log.log.headerKey;
        if (needsColumns(log) && !m_mappings.contains(key) && !m_declined.contains(key))
            return askForColumns(reading, log);
    }
    const bool isAnyChosen =
        std::any_of(reading.logs.cbegin(), reading.logs.cend(), [&](const ImportedLog &log) {
            return needsColumns(log) && m_mappings.contains(log.log.headerKey);
        });
    if (isAnyChosen)
        return start(reading.paths);
    Reading settled = reading;
    for (ImportedLog &log : settled.logs) {
        if (!needsColumns(log))
            continue;
        log.log.status = LogStatus::Refused;
        log.log.reason = tr("Nobody has chosen the columns that tell of the battery.");
        log.log.sessions.clear();
    }
    showResult(settled);
}

void ImportDialog::askForColumns(const Reading &reading, const ImportedLog &log)
{
    const QString key = log.log.headerKey;
    const auto alike =
        std::count_if(reading.logs.cbegin(), reading.logs.cend(), [&key](const ImportedLog &other) {
            return other.log.needsMapping && other.log.status == LogStatus::Read &&
                   other.log.headerKey == key;
        });
    m_columns = new ColumnsDialog(log.log, QFileInfo(log.path).fileName(), static_cast<int>(alike) - 1, this);
    m_columns->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_columns, &QDialog::finished, this, [this, reading, key, dialog = m_columns](int result) {
        if (result == Accepted)
            m_mappings.insert(key, dialog->mapping());
        else
            m_declined.insert(key);
        m_columns = nullptr;
        settleColumns(reading);
    });
    m_columns->open();
}

void ImportDialog::showResult(const Reading &reading)
{
    const bool isFirst = m_paths.isEmpty();
    m_paths = reading.paths;
    offerClock(reading.clockOffset);
    listRefused(reading.logs);
    m_model->setLogs(reading.logs, reading.catalogue, reading.measured);
    if (isFirst)
        m_table->resizeColumnsToContents();
    if (!m_table->currentIndex().isValid())
        m_table->setCurrentIndex(m_model->index(0, 0));
    m_table->setFocus();
    refresh();
    if (m_model->rowCount() == 0)
        say(tr("There is no discharge in these logs."));
    else if (m_message->text().isEmpty() && m_model->isAnyNew())
        say(tr(
            "What is new is added when you tick it. To choose its model or battery, double-click there, or "
            "press F2."));
    if (reading.catalogue != m_logbook.catalogue())
        readAgain();
}

void ImportDialog::listRefused(const QList<ImportedLog> &logs)
{
    m_refused->clear();
    for (const ImportedLog &log : logs) {
        const QString name = QFileInfo(log.path).fileName();
        if (log.log.status == LogStatus::NotARadioLog)
            m_refused->addItem(tr("“%1” is no log of a radio: %2").arg(name, log.log.reason));
        else if (log.log.status == LogStatus::Refused)
            m_refused->addItem(tr("“%1”: %2").arg(name, log.log.reason));
        else if (log.log.status == LogStatus::Empty)
            m_refused->addItem(tr("“%1” holds no values.").arg(name));
    }
    m_refused->setVisible(m_refused->count() > 0);
    m_refusedCaption->setVisible(m_refused->count() > 0);
}

/** Another version of the logbook may have other flights to fill. */
void ImportDialog::readAgain()
{
    if (!m_isImporting && !m_thread && !m_columns && !m_paths.isEmpty())
        start(m_paths);
}

} // namespace Host
