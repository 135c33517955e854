// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/exportnames.h"

#include <QListWidget>
#include <QVBoxLayout>

namespace Host {

ExportNames::ExportNames(const QString &title, QStringList names, QWidget *parent)
    : QGroupBox(title, parent)
    , m_list(new QListWidget)
{
    names.removeDuplicates();
    for (const QString &name : std::as_const(names)) {
        auto *item = new QListWidgetItem(name, m_list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    m_list->setCurrentRow(0);
    m_list->setAccessibleName(QString(title).remove(u'&'));
    m_list->setMinimumHeight(fontMetrics().lineSpacing() * 4);
    m_list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // it scrolls; the dialog need not
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    setCheckable(true);
    setChecked(false);
    setEnabled(!names.isEmpty());
    connect(m_list, &QListWidget::itemChanged, this, &ExportNames::changed);
    connect(this, &QGroupBox::toggled, this, &ExportNames::changed);
}

std::optional<QStringList> ExportNames::chosen() const
{
    if (!isChecked())
        return std::nullopt;
    QStringList names;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->checkState() == Qt::Checked)
            names.append(m_list->item(row)->text());
    }
    return names;
}

} // namespace Host
