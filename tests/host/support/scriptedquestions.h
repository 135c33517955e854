// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/questions.h"

#include <QAbstractItemModel>
#include <QList>
#include <QPrinter>
#include <QTest>

/**
 * A user whose answers are known beforehand, in the order of the questions. A question that nobody expected
 * fails the test.
 */
class ScriptedQuestions final : public Host::Questions
{
public:
    /** The next question is answered with the button of this caption, and with this row of its table. */
    void answer(const QString &caption, int row = -1) { m_answers.append({caption, row}); }
    /** The next time a folder is asked for, it is this one; empty: the user does not choose any. */
    void choose(const QString &folder) { m_folders.append(folder); }

    /** The next time a file to write is asked for, it is this one; empty: the user does not choose any. */
    void chooseFile(const QString &path) { m_files.append(path); }
    /** The next time files to read are asked for, it is these; none: the user does not choose any. */
    void chooseFiles(const QStringList &paths) { m_fileLists.append(paths); }
    /** The next time something is printed, it becomes this PDF; empty: the user does not print. */
    void printTo(const QString &path) { m_prints.append(path); }

    /** The names that were proposed for files, and those of what was to be printed. */
    const QStringList &proposed() const { return m_proposed; }
    /** The questions that were asked. Their tables are gone: @see tables(). */
    const QList<Host::Question> &asked() const { return m_asked; }
    /** For each question the first column of its table. */
    const QList<QStringList> &tables() const { return m_tables; }
    const QStringList &told() const { return m_told; }
    /** Whether every answer was asked for. */
    bool isDone() const
    {
        return m_answers.isEmpty() && m_folders.isEmpty() && m_files.isEmpty() && m_fileLists.isEmpty() &&
               m_prints.isEmpty();
    }

    Host::Answer ask(const Host::Question &question) override
    {
        record(question);
        if (m_answers.isEmpty()) {
            fail("a question that nobody expected: " + question.text);
            return {question.refusal, -1};
        }
        const Scripted scripted = m_answers.takeFirst();
        const auto button = static_cast<int>(question.answers.indexOf(scripted.caption));
        if (button < 0)
            fail("\"" + question.text + "\" has no answer \"" + scripted.caption + "\"");
        return {button < 0 ? question.refusal : button, rowFor(question, scripted.row)};
    }

    void tell(const QString &text) override { m_told.append(text); }

    QString chooseFolder(const QString &caption) override
    {
        if (!m_folders.isEmpty())
            return m_folders.takeFirst();
        fail("a folder that nobody expected to be asked for: " + caption);
        return QString();
    }

    QStringList chooseFiles(const QString &caption, const QStringList &) override
    {
        if (!m_fileLists.isEmpty())
            return m_fileLists.takeFirst();
        fail("files that nobody expected to be asked for: " + caption);
        return QStringList();
    }

    QString chooseSaveFile(const QString &caption, const QString &name, const QStringList &) override
    {
        m_proposed.append(name);
        if (!m_files.isEmpty())
            return m_files.takeFirst();
        fail("a file that nobody expected to be asked for: " + caption);
        return QString();
    }

    void print(const QString &name, const std::function<void(QPrinter &)> &paint) override
    {
        m_proposed.append(name);
        if (m_prints.isEmpty())
            return fail("something that nobody expected to be printed: " + name);
        const QString path = m_prints.takeFirst();
        if (path.isEmpty())
            return;
        QPrinter printer(QPrinter::HighResolution);
        printer.setDocName(name);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        paint(printer);
    }

    std::unique_ptr<Host::Progress> progress(const QString &text, int steps) override
    {
        m_works.append(text);
        return std::make_unique<Watched>(*this, steps);
    }
    /** The next work is cancelled when it has done so many steps. */
    void cancelAfter(int steps) { m_cancelAfter = steps; }
    /** At each step of a work this happens, as other events would. */
    void atEachStep(const std::function<void()> &happens) { m_atEachStep = happens; }
    /** What progress was shown of. */
    const QStringList &works() const { return m_works; }

private:
    class Watched final : public Host::Progress
    {
    public:
        Watched(ScriptedQuestions &questions, int steps)
            : m_questions(questions)
            , m_steps(steps)
        {
        }
        bool step() override
        {
            if (++m_done > m_steps)
                fail("more steps than were announced");
            if (m_questions.m_atEachStep)
                m_questions.m_atEachStep();
            return m_isCommitted || m_done != m_questions.m_cancelAfter;
        }
        void commit() override { m_isCommitted = true; }

    private:
        ScriptedQuestions &m_questions;
        const int m_steps;
        int m_done = 0;
        bool m_isCommitted = false;
    };

    struct Scripted
    {
        QString caption;
        int row;
    };

    static int rowFor(const Host::Question &question, int row)
    {
        if (!question.choices)
            return -1;
        return row < 0 ? question.chosen : row;
    }

    void record(const Host::Question &question)
    {
        QStringList table;
        for (int row = 0; question.choices && row < question.choices->rowCount(); ++row)
            table.append(question.choices->index(row, 0).data().toString());
        m_tables.append(table);
        m_asked.append(question);
        m_asked.last().choices = nullptr;
    }

    static void fail(const QString &what) { QTest::qFail(qPrintable(what), __FILE__, __LINE__); }

    QList<Scripted> m_answers;
    QStringList m_folders;
    QStringList m_files;
    QList<QStringList> m_fileLists;
    QStringList m_prints;
    QStringList m_proposed;
    QList<Host::Question> m_asked;
    QList<QStringList> m_tables;
    QStringList m_told;
    QStringList m_works;
    std::function<void()> m_atEachStep;
    int m_cancelAfter = 0;
};
