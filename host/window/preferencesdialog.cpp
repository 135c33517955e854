// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/preferencesdialog.h"

#include "host/preferences/settings.h"
#include "host/window/advicelimits.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>

namespace Host {
namespace {

QString translated(const char *text, int number = -1)
{
    return QCoreApplication::translate("AdviceLimits", text, nullptr, number);
}

/** The unit as it stands behind the number: “1 day”, “2 days”. */
void showUnit(QSpinBox *edit, const char *unit)
{
    const QString text = translated(unit, edit->value());
    edit->setSuffix(text);
    edit->setAccessibleDescription(text.trimmed());
}

} // namespace

PreferencesDialog::PreferencesDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Preferences"));
    auto *group = new QGroupBox(tr("When there is something to do"));
    auto *form = new QFormLayout(group);
    const AdviceLimits limits = chosenLimits();
    for (const LimitField &field : limitFields()) {
        auto *edit = new QSpinBox;
        edit->setRange(field.least, field.most);
        edit->setValue(limits.*field.value);
        showUnit(edit, field.unit);
        connect(edit, &QSpinBox::valueChanged, this, [edit, unit = field.unit] { showUnit(edit, unit); });
        edit->setAccessibleName(translated(field.caption));
        form->addRow(translated(field.caption), edit);
        m_limits.append(edit);
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                         QDialogButtonBox::RestoreDefaults);
    connect(buttons, &QDialogButtonBox::accepted, this, &PreferencesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->setFocusProxy(
        nullptr); // with its own, Tab would leave out what comes before the first that accepts
    connect(buttons->button(QDialogButtonBox::RestoreDefaults), &QPushButton::clicked, this,
            &PreferencesDialog::restoreDefaults);
    auto *area = new QScrollArea; // at 200 % it is higher than some screens
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it follows its fields
    area->setWidget(group);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(area);
    layout->addWidget(buttons);
}

void PreferencesDialog::accept()
{
    Settings settings;
    for (qsizetype i = 0; i < m_limits.size(); ++i)
        settings.setLimit(QLatin1StringView(limitFields().at(i).name), m_limits.at(i)->value());
    QDialog::accept();
}

void PreferencesDialog::restoreDefaults()
{
    const AdviceLimits defaults;
    for (qsizetype i = 0; i < m_limits.size(); ++i)
        m_limits.at(i)->setValue(defaults.*limitFields().at(i).value);
}

} // namespace Host
