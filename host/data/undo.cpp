// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/undo.h"

#include "host/data/cataloguefile.h"
#include "host/data/changes.h"

#include <algorithm>

namespace Host {
namespace {

constexpr int Quick = 1; // a stronger compression of a long logbook takes longer than the window's reading

/** The document with what stands at an offset exchanged. */
QByteArray exchanged(const QByteArray &document, qsizetype offset, const QByteArray &old,
                     const QByteArray &replacement)
{
    return document.first(offset) + replacement + document.sliced(offset + old.size());
}

QString nameOf(const QByteArray &before, const QByteArray &after)
{
    return changeName(CatalogueFile::load(before).catalogue, CatalogueFile::load(after).catalogue);
}

} // namespace

void UndoHistory::restart(const QByteArray &document, const QByteArray &beside)
{
    m_present = document;
    m_beside = beside;
    m_steps.clear();
    m_done = 0;
}

void UndoHistory::add(const QByteArray &document, const QString &name)
{
    if (document == m_present)
        return;
    m_steps.resize(m_done);
    const qsizetype shorter = std::min(m_present.size(), document.size());
    const auto begin = std::mismatch(m_present.cbegin(), m_present.cbegin() + shorter, document.cbegin());
    const qsizetype offset = begin.first - m_present.cbegin();
    const auto end =
        std::mismatch(m_present.crbegin(), m_present.crbegin() + (shorter - offset), document.crbegin());
    const qsizetype tail = end.first - m_present.crbegin();
    m_steps.append({name,
                    offset,
                    qCompress(m_present.mid(offset, m_present.size() - tail - offset), Quick),
                    qCompress(document.mid(offset, document.size() - tail - offset), Quick),
                    false,
                    {},
                    {}});
    m_present = document;
    m_done = m_steps.size();
    forgetTheOldest();
}

void UndoHistory::setBeside(const QByteArray &beside)
{
    if (beside == m_beside)
        return;
    if (m_done > 0) {
        Step &step = m_steps[m_done - 1];
        if (!step.changesBeside)
            step.besideBefore = qCompress(m_beside, Quick);
        step.changesBeside = true;
        step.besideAfter = qCompress(beside, Quick);
    }
    m_beside = beside;
    if (m_done == m_steps.size())
        forgetTheOldest();
}

void UndoHistory::forgetTheOldest()
{
    qsizetype size = 0;
    for (const Step &step : std::as_const(m_steps))
        size += step.size();
    while (size > MostBytes)
        size -= m_steps.takeFirst().size();
    m_done = m_steps.size();
}

QByteArray UndoHistory::besideBefore() const
{
    const Step &step = m_steps.at(m_done - 1);
    return step.changesBeside ? qUncompress(step.besideBefore) : m_beside;
}

QByteArray UndoHistory::besideBehind() const
{
    const Step &step = m_steps.at(m_done);
    return step.changesBeside ? qUncompress(step.besideAfter) : m_beside;
}

QByteArray UndoHistory::before() const
{
    const Step &step = m_steps.at(m_done - 1);
    return exchanged(m_present, step.offset, qUncompress(step.after), qUncompress(step.before));
}

QByteArray UndoHistory::behind() const
{
    const Step &step = m_steps.at(m_done);
    return exchanged(m_present, step.offset, qUncompress(step.before), qUncompress(step.after));
}

void UndoHistory::undone()
{
    m_present = before();
    m_beside = besideBefore();
    --m_done;
}

void UndoHistory::redone()
{
    m_present = behind();
    m_beside = besideBehind();
    ++m_done;
}

QString UndoHistory::undoName() const
{
    if (!canUndo())
        return QString();
    const Step &step = m_steps.at(m_done - 1);
    return step.name.isEmpty() ? nameOf(before(), m_present) : step.name;
}

QString UndoHistory::redoName() const
{
    if (!canRedo())
        return QString();
    const Step &step = m_steps.at(m_done);
    return step.name.isEmpty() ? nameOf(m_present, behind()) : step.name;
}

} // namespace Host
