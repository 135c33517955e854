// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/questions.h"

#include <QAbstractItemModel>
#include <QList>
#include <QStringList>

#include <functional>

/** Answers questions as it was told beforehand, and remembers them. What nobody answers beforehand is
 * refused. */
class Answers final : public Host::Questions
{
public:
    struct Asked
    {
        Host::Question question; // its choices are gone by the time a test looks: their texts are below
        QList<QStringList> rows;
        QList<bool> choosable;
    };

    /** Answers the next question by the caption of a button. */
    void press(const QString &caption, int row = -1) { m_next.append({caption, row}); }
    /** Presses return: the preferred answer, about the row that is chosen at first. */
    void pressReturn() { m_next.append({QString(), -1}); }

    /** Forgets everything. */
    void reset()
    {
        asked.clear();
        told.clear();
        m_next.clear();
        whenAsked = {};
    }

    Host::Answer ask(const Host::Question &question) override
    {
        asked.append(remember(question));
        if (whenAsked)
            whenAsked();
        if (m_next.isEmpty())
            return {question.refusal, question.chosen};
        const auto [caption, row] = m_next.takeFirst();
        const int button =
            caption.isEmpty() ? question.preferred : static_cast<int>(question.answers.indexOf(caption));
        return {button, row < 0 && question.choices ? question.chosen : row};
    }

    void tell(const QString &text) override { told.append(text); }
    QString chooseFolder(const QString &) override { return QString(); }
    QString chooseSaveFile(const QString &, const QString &, const QStringList &) override
    {
        return QString();
    }
    void print(const QString &, const std::function<void(QPrinter &)> &) override {}
    std::unique_ptr<Host::Progress> progress(const QString &text, int) override
    {
        works.append(text);
        return std::make_unique<Impatient>(patience);
    }

    QList<Asked> asked;
    QStringList told;
    std::function<void()> whenAsked;
    QStringList works; ///< of which progress was shown
    int patience = -1; ///< the next works are cancelled after so many steps

private:
    class Impatient final : public Host::Progress
    {
    public:
        explicit Impatient(int patience)
            : m_patience(patience)
        {
        }
        bool step() override { return m_isCommitted || --m_patience != 0; }
        void commit() override { m_isCommitted = true; }

    private:
        int m_patience;
        bool m_isCommitted = false;
    };

    static Asked remember(const Host::Question &question)
    {
        Asked result{question, {}, {}};
        const QAbstractItemModel *model = question.choices;
        for (int row = 0; model && row < model->rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < model->columnCount(); ++column)
                texts.append(model->index(row, column).data().toString());
            result.rows.append(texts);
            result.choosable.append(model->index(row, 0).flags().testFlag(Qt::ItemIsSelectable));
        }
        result.question.choices = nullptr;
        return result;
    }

    QList<std::pair<QString, int>> m_next;
};
