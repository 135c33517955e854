// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QAbstractItemModel;
class QPrinter;

namespace Host {

/** A question to the user. Its texts are shown as they are, never as markup. */
struct Question
{
    QString text;        ///< one sentence that says what is the matter
    QString details;     ///< what follows from it, and advice
    QStringList answers; ///< the captions of the buttons
    int preferred = 0;   ///< the answer that the return key gives
    int refusal = 0;     ///< the answer that changes nothing: for Escape, and where nobody can answer
    /** Where an answer is about one of several things: a table of them, its first column their names.
     * Rows that cannot be chosen are disabled. Not owned. */
    QAbstractItemModel *choices = nullptr;
    int chosen = 0; ///< the row that is chosen at first
    QIcon picture;  ///< beside the text; without one it is that of a warning
};

struct Answer
{
    int button = 0; ///< the index in Question::answers
    int row = -1;   ///< the chosen row of Question::choices; -1 without any
};

/** How far a piece of work is, which tells each step, so that the window lives on. */
class Progress
{
public:
    Progress() = default;
    virtual ~Progress() = default;
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /** A step is done. @return whether to go on: false when the user has had enough. */
    virtual bool step() = 0;
    /** From here on the work is done to its end, and cannot be cancelled. */
    virtual void commit() = 0;
};

/** Of work that nobody watches. */
class UnseenProgress final : public Progress
{
public:
    bool step() override { return true; }
    void commit() override {}
};

/** Everything that the program asks or tells in a box goes through here. */
class Questions
{
public:
    Questions() = default;
    virtual ~Questions() = default;
    Questions(const Questions &) = delete;
    Questions &operator=(const Questions &) = delete;

    virtual Answer ask(const Question &question) = 0;
    /** Tells something and waits until it was read. */
    virtual void tell(const QString &text) = 0;
    /** Lets the user choose an existing folder; empty when he does not. */
    virtual QString chooseFolder(const QString &caption) = 0;
    /** Lets the user choose files to read; none when he does not. @param filters as below. */
    virtual QStringList chooseFiles(const QString &caption, const QStringList &filters)
    {
        Q_UNUSED(caption)
        Q_UNUSED(filters)
        return QStringList();
    }
    /**
     * Lets the user choose a file to write, and asks before it is one that exists; empty when he does not.
     *
     * @param name that is proposed, without a folder.
     * @param filters such as "PNG picture (*.png)"; the chosen one ends a name that has no ending.
     */
    virtual QString chooseSaveFile(const QString &caption, const QString &name,
                                   const QStringList &filters) = 0;
    /** Lets the user choose a printer, and paints on it when he does. @param name of what is printed. */
    virtual void print(const QString &name, const std::function<void(QPrinter &)> &paint) = 0;
    /** Shows how far a piece of work is, where it takes more than a moment, until the progress goes. */
    virtual std::unique_ptr<Progress> progress(const QString &text, int steps)
    {
        Q_UNUSED(text)
        Q_UNUSED(steps)
        return std::make_unique<UnseenProgress>();
    }
};

/** Shows boxes. */
class BoxQuestions final : public Questions
{
public:
    Answer ask(const Question &question) override;
    void tell(const QString &text) override;
    QString chooseFolder(const QString &caption) override;
    QStringList chooseFiles(const QString &caption, const QStringList &filters) override;
    QString chooseSaveFile(const QString &caption, const QString &name, const QStringList &filters) override;
    void print(const QString &name, const std::function<void(QPrinter &)> &paint) override;
    std::unique_ptr<Progress> progress(const QString &text, int steps) override;
};

/** For a program that nobody can see: every question is refused. */
class UnattendedQuestions final : public Questions
{
public:
    Answer ask(const Question &question) override { return {question.refusal, -1}; }
    void tell(const QString &) override {}
    QString chooseFolder(const QString &) override { return QString(); }
    QStringList chooseFiles(const QString &, const QStringList &) override { return QStringList(); }
    QString chooseSaveFile(const QString &, const QString &, const QStringList &) override
    {
        return QString();
    }
    void print(const QString &, const std::function<void(QPrinter &)> &) override {}
};

} // namespace Host
