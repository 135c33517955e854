// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/display.h"

#include "host/app/console.h"

#include <QCoreApplication>
#include <QList>
#include <QLoggingCategory>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Message
{
    QtMsgType type;
    QByteArray category;
    QString text;
};

QList<Message> &messages()
{
    static QList<Message> list;
    return list;
}

/** What Qt found wrong first; the rest follows from it. */
QString reason()
{
    for (const Message &message : std::as_const(messages())) {
        if (message.type == QtWarningMsg)
            return message.text.trimmed();
    }
    return QString();
}

QString problem()
{
    if (isWithoutDisplay())
        return QCoreApplication::translate(
            "DisplayGuard", "There is no display. Start voltbok from a desktop session; --screenshot FILE "
                            "draws the window without one.");
    return QCoreApplication::translate(
               "DisplayGuard", "The display cannot be opened (%1). Start voltbok from a desktop session, and "
                               "check DISPLAY, WAYLAND_DISPLAY and QT_QPA_PLATFORM; --screenshot FILE draws "
                               "the window without a display.")
        .arg(reason());
}

void keepMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (text.startsWith("QStandardPaths: XDG_RUNTIME_DIR"_L1))
        return; // Qt looks there for itself, and finds another place
    if (type != QtFatalMsg) {
        messages().append({type, context.category, text});
        return;
    }
    Console::complain(problem());
    std::_Exit(EXIT_FAILURE); // nothing is open yet that would have to be put away
}

} // namespace

bool isWithoutDisplay()
{
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

DisplayGuard::DisplayGuard()
    : m_before(qInstallMessageHandler(keepMessage))
{
}

DisplayGuard::~DisplayGuard()
{
    qInstallMessageHandler(m_before);
    for (const Message &message : std::exchange(messages(), {})) {
        const QMessageLogger logger(nullptr, 0, nullptr, message.category.constData());
        switch (message.type) {
        case QtDebugMsg:
            logger.debug().noquote() << message.text;
            break;
        case QtInfoMsg:
            logger.info().noquote() << message.text;
            break;
        default:
            logger.warning().noquote() << message.text;
            break;
        }
    }
}

} // namespace Host
