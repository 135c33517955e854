// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QXmlStreamAttributes>

#include <memory>
#include <vector>

namespace Host {

/** An element of a data file, whatever it is called and wherever it stands. */
struct Element
{
    QString name;
    qint64 line = 0;
    bool isRecord = false;    ///< a battery or a model
    bool isContainer = false; ///< of entries: they may stand in several containers, which are one here
    bool isValue = false;     ///< a child of a battery or a model that is no container: its text is a value
    QXmlStreamAttributes attributes;
    QString content;
    QStringList remarks; ///< a clause for each comment and each other thing that no save writes
    std::vector<std::unique_ptr<Element>> children;

    /** The first child of this name; null when there is none. */
    Element *child(QStringView wanted) const;
    /** The children of this name, in their order. */
    QList<const Element *> all(QStringView wanted) const;
};

/** A document as a tree; what this returns stands above its root element. */
std::unique_ptr<Element> documentTree(const QByteArray &document);

} // namespace Host
