// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace Host {

class FlightBookPages;

/** A page of the flight book as it looks on paper. */
class FlightBookPreview final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlightBookPreview)

public:
    explicit FlightBookPreview(QWidget *parent = nullptr);

    /** @param pages are not owned; without them nothing is shown. @param page one that is laid out. */
    void show(const FlightBookPages *pages, int page);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const FlightBookPages *m_pages = nullptr;
    int m_page = 0;
};

} // namespace Host
