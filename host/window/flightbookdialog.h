// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/daterange.h"
#include "host/exchange/flightbookpages.h"

#include <QDialog>
#include <QTimer>

#include <memory>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QListWidget;
class QPrinter;
class QPushButton;
class QSpinBox;

namespace Host {

class FlightBookPreview;
class OpenLogbook;
class Questions;

/** Prints the flight book or saves it as a PDF file, as the user chooses. */
void showFlightBook(OpenLogbook &logbook, Questions &questions, QWidget *parent);

/** Chooses what stands in the flight book, shows it, and puts it on paper or into a file. */
class FlightBookDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlightBookDialog)

public:
    FlightBookDialog(std::shared_ptr<const Catalogue> catalogue, Questions &questions,
                     QWidget *parent = nullptr);
    ~FlightBookDialog() override;

private:
    QWidget *buildChoices();
    QWidget *buildPreview();
    void addDate(QFormLayout &form, const QString &caption, const QString &name, QCheckBox *&box,
                 QDateEdit *&edit);
    void addButtons();

    DateRange range() const;
    FlightBook book() const;
    QPageSize::PageSizeId paper() const;

    void work();
    void layOutNext();
    void showPage();
    void say(const QString &text);
    void print();
    bool printOn(QPrinter &printer);
    QByteArray pdf();
    void save();

    const std::shared_ptr<const Catalogue> m_catalogue;
    Questions &m_questions;
    std::unique_ptr<FlightBookPages> m_pages; ///< of the preview; null where the days make no sense
    QTimer m_layingOut;
    QCheckBox *m_isFrom;
    QDateEdit *m_from;
    QCheckBox *m_isTo;
    QDateEdit *m_to;
    QListWidget *m_models; ///< each name once
    QComboBox *m_paper;
    FlightBookPreview *m_preview;
    QSpinBox *m_page;
    QLabel *m_summary;
    QLabel *m_message;
    QPushButton *m_print;
    QPushButton *m_save;
};

} // namespace Host
