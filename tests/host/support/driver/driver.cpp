// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/driver/driver.h"

#include "tests/host/support/driver/deeds.h"
#include "tests/host/support/driver/hands.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QRandomGenerator>
#include <QSocketNotifier>

#include <cstdio>
#include <functional>
#include <utility>

#include <dlfcn.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int PatienceMs = 10'000;     // for a widget that a command needs; the machine may be busy
constexpr int WindowPatienceMs = 1000; // where a window is on show already
constexpr int LookAgainMs = 20;

QRandomGenerator &dice()
{
    static QRandomGenerator generator;
    return generator;
}

void report(const QString &what, const QStringList &words)
{
    const QString time = QString::number(QDateTime::currentMSecsSinceEpoch());
    std::fprintf(stdout, "%s\n", qUtf8Printable((QStringList{time, what} + words).join(u'\t')));
    std::fflush(stdout);
}

/** Now and then the last thing that the program does is a part of what it does now, where that is provided
 * for: a death from outside rarely meets a change that takes so short. */
void perhapsDieSoon()
{
    constexpr int LeastMs = 1500; // something is owed by then
    constexpr int MostOperations = 16;
    using DieSoon = void (*)(int);
    static const auto dieSoon = reinterpret_cast<DieSoon>(dlsym(RTLD_DEFAULT, "voltbokDieSoon"));
    static QElapsedTimer clock;
    if (!clock.isValid())
        clock.start();
    if (dieSoon && qEnvironmentVariableIsSet("VOLTBOK_DIES_IN_DEED") && clock.elapsed() > LeastMs)
        dieSoon(dice().bounded(MostOperations));
}

/** Reports what is about to happen, and remembers it for what is reported when it was done. */
Deeds::Ear earOf(const QString &command, QStringList *result)
{
    return [command, result](const QStringList &words) {
        report(u"now"_s, QStringList{command} + words);
        perhapsDieSoon();
        *result = words;
    };
}

using Action = std::function<bool(const QStringList &, QStringList *)>;

/** The commands that are over when they return; the words are theirs. */
const QHash<QString, Action> &actions()
{
    static const auto of = [](auto function) -> Action {
        return [function](const QStringList &words, QStringList *) { return function(words.value(0)); };
    };
    static const auto ofTwo = [](auto function) -> Action {
        return [function](const QStringList &words, QStringList *) {
            return function(words.value(0), words.value(1));
        };
    };
    static const QHash<QString, Action> table{
        {u"click"_s, [](const QStringList &words,
                        QStringList *result) { return Hands::clickCard(words.value(0), result); }},
        {u"press"_s,
         [](const QStringList &words, QStringList *result) {
             *result = Hands::messages();
             return Hands::press(words.value(0));
         }},
        {u"press-for-box"_s, of(Hands::pressForBox)},
        {u"answer"_s, of([](const QString &button) { return Hands::seesBox() && Hands::press(button); })},
        {u"type"_s, ofTwo(Hands::type)},
        {u"choose"_s, ofTwo(Hands::choose)},
        {u"menu"_s, of(Hands::chooseFromMenu)},
        {u"select"_s,
         [](const QStringList &words, QStringList *) { return Hands::select(words.value(0).toInt()); }},
        {u"leave"_s,
         [](const QStringList &, QStringList *) {
             Hands::leaveBox();
             return true;
         }},
        {u"add-location"_s, of(Hands::addLocation)},
        {u"delete-location"_s, of(Hands::deleteLocation)},
        {u"add-battery"_s, of(Hands::addBattery)},
        {u"delete-battery"_s, of(Hands::deleteBattery)},
        {u"assign"_s, ofTwo(Hands::assign)},
        {u"unassign"_s, ofTwo(Hands::unassign)},
        {u"messages"_s,
         [](const QStringList &, QStringList *result) {
             *result = Hands::messages();
             return true;
         }},
        {u"undo"_s, [](const QStringList &, QStringList *) { return Deeds::move(u"Undo"_s); }},
        {u"redo"_s, [](const QStringList &, QStringList *) { return Deeds::move(u"Redo"_s); }},
        {u"restore"_s, [](const QStringList &,
                          QStringList *result) { return Deeds::restoreOldest(earOf(u"restore"_s, result)); }},
        {u"edit"_s,
         [](const QStringList &words, QStringList *result) {
             return Deeds::editFlight(words.value(0).toInt(), earOf(u"edit"_s, result));
         }},
        {u"import"_s,
         [](const QStringList &words, QStringList *result) {
             return Deeds::import(words.value(0), earOf(u"import"_s, result));
         }},
        {u"merge"_s,
         [](const QStringList &, QStringList *result) { return Deeds::merge(earOf(u"merge"_s, result)); }},
        {u"quit"_s, [](const QStringList &, QStringList *) { return Hands::closeWindow(); }},
    };
    return table;
}

bool execute(const QStringList &words, QStringList *result)
{
    const auto action = actions().find(words.constFirst());
    return action != actions().end() && (*action)(words.mid(1), result);
}

} // namespace

Driver::Driver()
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &Driver::step);
    QMetaObject::invokeMethod(this, &Driver::start, Qt::QueuedConnection);
}

void Driver::start()
{
    QFile script(qEnvironmentVariable("VOLTBOK_SCRIPT"));
    if (script.open(QFile::ReadOnly)) {
        m_input = script.readAll();
        readInput();
        return;
    }
    const auto *input = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
    connect(input, &QSocketNotifier::activated, this, [this, input] {
        char bytes[4096];
        const ssize_t size = ::read(STDIN_FILENO, bytes, sizeof bytes);
        if (size <= 0) {
            const_cast<QSocketNotifier *>(input)->setEnabled(false);
            return;
        }
        m_input.append(bytes, size);
        readInput();
    });
}

void Driver::readInput()
{
    for (qsizetype end = m_input.indexOf('\n'); end >= 0; end = m_input.indexOf('\n')) {
        m_commands.append(QString::fromUtf8(m_input.left(end)).split(u'\t'));
        m_input.remove(0, end + 1);
    }
    if (!m_next.isActive())
        m_next.start(0);
}

void Driver::step()
{
    if (m_commands.isEmpty())
        return;
    const QStringList words = m_commands.takeFirst();
    m_next.start(0); // it may open a box, and return only when a later command has closed that
    if (words.constFirst() == u"wait") {
        m_next.start(words.value(1).toInt());
        return;
    }
    if (words.constFirst() == u"storm") {
        dice().seed(words.value(2).toUInt());
        m_logs = QDir(words.value(3)).entryInfoList(QDir::Files);
        storm(words.value(1).toInt());
        return;
    }
    if (m_deadline == 0) {
        report(u"begin"_s, words);
        m_deadline = QDateTime::currentMSecsSinceEpoch() + PatienceMs;
    }
    const qint64 deadline = std::exchange(m_deadline, 0);
    const qint64 earlier = Hands::seesWindow() ? PatienceMs - WindowPatienceMs : 0;
    QStringList result;
    if (execute(words, &result)) {
        report(u"done"_s, words + result);
    } else if (QDateTime::currentMSecsSinceEpoch() >= deadline - earlier) {
        report(u"failed"_s, words);
    } else { // what it needs is not there yet
        const QStringList told = Hands::readAndCloseBox();
        if (!told.isEmpty())
            report(u"box"_s, told);
        m_deadline = deadline;
        m_commands.prepend(words);
        m_next.start(LookAgainMs);
    }
}

void Driver::storm(int pause)
{
    const QStringList words = randomCommand();
    QStringList result;
    report(u"begin"_s, words);
    if (words.constFirst() == u"undo" || words.constFirst() == u"redo")
        perhapsDieSoon();
    const bool done = execute(words, &result);
    report(done ? u"done"_s : u"failed"_s, words + result);
    QTimer::singleShot(pause, this, [this, pause] { storm(pause); });
}

QStringList Driver::randomCommand()
{
    const auto any = [](const QStringList &texts) {
        return texts.isEmpty() ? QString() : texts.at(dice().bounded(texts.size()));
    };
    const auto fresh = [](QStringList *names) {
        names->append(u"Storm %1"_s.arg(QDateTime::currentMSecsSinceEpoch()));
        return names->constLast();
    };
    const auto spent = [](QStringList *names) { return names->isEmpty() ? QString() : names->takeFirst(); };
    if (std::exchange(m_hasUndone, false) && dice().bounded(2) == 0)
        return {u"redo"_s}; // another change would leave nothing to do again
    switch (dice().bounded(60)) {
    case 0:
        return {u"add-location"_s, fresh(&m_locations)};
    case 1:
        return {u"delete-location"_s, spent(&m_locations)};
    case 2:
        return {u"add-battery"_s, fresh(&m_batteries)};
    case 3:
        return {u"delete-battery"_s, spent(&m_batteries)};
    case 4:
        return {u"assign"_s, any(Hands::choices(u"cb_model_choose_bat"_s)),
                any(Hands::choices(u"cb_bat_choose_model"_s))};
    case 5:
        return {u"unassign"_s, any(Hands::choices(u"cb_model_choose_bat"_s)), m_batteries.value(0)};
    case 6:
    case 7:
    case 8:
        m_hasUndone = true;
        return {u"undo"_s};
    case 9:
    case 10:
    case 11:
        return {u"edit"_s, QString::number(dice().bounded(1000))};
    case 12:
    case 13:
        return {u"import"_s, m_logs.isEmpty()
                                 ? QString()
                                 : m_logs.at(dice().bounded(static_cast<int>(m_logs.size()))).filePath()};
    case 14:
        return {u"restore"_s};
    case 15:
    case 16:
    case 17:
    case 18:
        if (Deeds::isMergeOffered())
            return {u"merge"_s};
        [[fallthrough]];
    default: // where the last command left a page open, back to the cards first
        if (Hands::cards().isEmpty())
            return {u"press"_s, u"pb_options"_s};
        return {u"click"_s, any(Hands::cards())};
    }
}
