// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/harness.h"
#include "tests/host/support/record.h"

#include <QObject>
#include <QProcess>
#include <QTimer>

#include <functional>
#include <memory>

/** One operation of the program on its folder, from the log of the faults. */
struct Operation
{
    int number = 0;
    QString name;
    QString flags;
    QString path; ///< below the folder
    bool struck = false;
};
QList<Operation> operationsIn(const QString &faultLog);

struct Fault
{
    QString kind; ///< as the shim names them; empty for none
    int at = 0;
    bool forever = false;

    QString name() const;
    bool kills() const { return kind.startsWith(QLatin1String("kill")); }
};

/** Every fault that fits one of the operations. */
QList<Fault> faultsFor(const QList<Operation> &operations);

/** The measured values of one discharge, as they stand beside a logbook. */
QByteArray measuredOf(const QString &battery, const QDateTime &time = {});

/** What a pilot does, in a folder that was prepared for it. */
struct Scenario
{
    QString name;
    std::function<void(const Home &)> prepare;
    QList<QStringList> commands;
    Logbook start;        ///< what the window shows at first, where all goes well
    QString written = {}; ///< a file that nothing else but the commands writes
};

/** The program under one fault, from its start to its end. */
class FaultRun final : public QObject
{
    Q_OBJECT

public:
    /** @param display of an X server: questions are asked only where somebody may see them. */
    FaultRun(const Scenario &scenario, const Fault &fault, const QString &display);

    /** Before its end, nobody is told. */
    ~FaultRun() override { m_process.disconnect(this); }
    Q_DISABLE_COPY_MOVE(FaultRun)

    void start();

    const Fault &fault() const { return m_fault; }
    const QList<Operation> &operations() const { return m_operations; }
    /** The operation that was the first to be struck; empty when none was. */
    QString struck() const;
    /** What went wrong beyond the fault; empty when all promises were kept. */
    const QStringList &problems() const { return m_problems; }

Q_SIGNALS:
    void over();

private:
    void next();
    void readReports();
    void lookWhetherSettled();
    void finished();
    bool isSaved() const;
    bool isCopied() const;
    bool isAsItWas() const;
    void judge();
    void judgeCopies();
    void judgeRecords();
    void judgeMessages(const QStringList &messages);
    void judgeWords();
    void judgeLeftovers();

    const Scenario &m_scenario;
    const Fault m_fault;
    Home m_home;
    QList<std::pair<QString, QByteArray>> m_before; // every file of the folder, and what it held
    QProcess m_process;
    QTimer m_settling;
    QTimer m_patience;
    qsizetype m_command = 0;
    Record m_record;
    qint64 m_settled = 0; // until when everything was seen in the file and in a copy
    qint64 m_settleBy = 0;
    bool m_missed = false;      // something was not saved, or not copied, for longer than it may take
    bool m_offeredLess = false; // a box said that a copy is damaged
    bool m_ends = false;
    QStringList m_askedAbout; // what was missing when the program was last asked for its messages
    QStringList m_complaints;
    QList<Operation> m_operations;
    QStringList m_problems;
};
