// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/general_settings.h"
#include "host/window/pages/host_page.h"

#include <QString>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace host {

class DialogSession;
class DocumentBox;
class DocumentChoice;
class LayoutForm;
class OptionForm;
class RangeCheck;

// The general settings of every printer: copies, pages, and paper, tray and two-sided printing as far as its
// PPD has them. Writes to the session and the choice of documents immediately; both are borrowed and outlive
// the page.
class GeneralPage : public HostPage
{
    Q_OBJECT
public:
    // `documents` may be null: nothing is printed from this dialog.
    explicit GeneralPage(DialogSession *session, DocumentChoice *documents = nullptr,
                         QWidget *parent = nullptr);

    QString problem() const override;
    void showProblem() override;
    void refresh() override;
    // Selects pages to print, given as normalized ranges; an empty string selects all.
    void setRanges(const QString &ranges);

Q_SIGNALS:
    // The pages to print, or their layout, have changed.
    void pagesChanged();
    void savePdfWanted();
    // The page has additional controls.
    void grown();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void addDocuments(QGridLayout *grid);
    void addLayout();
    void settleLayout();
    void addSavePdf(QGridLayout *grid);
    void explainParts();
    void addRangeCheck();
    QRadioButton *addPart(GeneralSettings::Part part, const QString &text);
    void showSides();
    void addCopies(QGridLayout *grid);
    void enableCollate();
    void enablePages(bool some);
    void showGeneral();
    void addPages(QGridLayout *grid);
    void pagesEdited();
    QString pagesProblem() const;
    void setProblemShown(bool shown);
    void paintProblem();

    DialogSession *m_session;
    DocumentChoice *m_documents;
    DocumentBox *m_documentBox = nullptr; // null if there is no choice
    RangeCheck *m_rangeCheck = nullptr;   // created after the first paint; null if nothing is printed
    QSpinBox *m_copies;
    QCheckBox *m_collate;
    QRadioButton *m_allPages;
    QRadioButton *m_somePages;
    QLineEdit *m_pages;
    QLabel *m_problem;
    QString m_announced; // the problem that was announced last; null if there is none
    QList<std::pair<GeneralSettings::Part, QRadioButton *>> m_parts; // offered by another program
    QLabel *m_sides; // explains that page ranges count printed sides
    OptionForm *m_form = nullptr;
    LayoutForm *m_layout = nullptr; // created after the first paint
    bool m_isPainted = false;
};

} // namespace host
