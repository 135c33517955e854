// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QTableView;

namespace Host {

struct Battery;
struct Measured;
class HealthModel;

/** What radio logs tell of a battery, and whether it ages. */
class HealthView final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HealthView)

public:
    explicit HealthView(QWidget *parent = nullptr);

    void setBattery(const Battery &battery, const Measured &measured);

protected:
    bool event(QEvent *event) override;

private:
    void makeRoom();
    void retranslate();

    QLabel *m_text;
    QTableView *m_table;
    HealthModel *m_model;
};

} // namespace Host
