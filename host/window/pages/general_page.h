// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/general_settings.h"

#include <QString>
#include <QWidget>

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

// What every printer can be asked: copies, pages, and of paper, tray and two-sided printing what its PPD has.
// Writes to the session and the choice of documents at once; both are borrowed and outlive the page.
class GeneralPage : public QWidget
{
    Q_OBJECT
public:
    // `documents` may be null: nothing is printed from here.
    explicit GeneralPage(DialogSession *session, DocumentChoice *documents = nullptr,
                         QWidget *parent = nullptr);

    // Null string when everything typed here makes sense.
    QString problem() const;
    // Puts the cursor where the problem is.
    void showProblem();
    void refresh();
    // Prints these pages, given as normalized ranges; the empty string for all.
    void setRanges(const QString &ranges);

Q_SIGNALS:
    void chosen(const QString &keyword);
    // Which pages are printed, or how, has become another.
    void pagesChanged();
    void savePdfWanted();
    void previewWanted();
    // It has more controls than before.
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
    DocumentBox *m_documentBox = nullptr; // null where there is no choice
    RangeCheck *m_rangeCheck = nullptr;   // made after the first paint; null where nothing is printed
    QSpinBox *m_copies;
    QCheckBox *m_collate;
    QRadioButton *m_allPages;
    QRadioButton *m_somePages;
    QLineEdit *m_pages;
    QLabel *m_problem;
    QString m_announced; // the problem that was announced last; null while there is none
    QList<std::pair<GeneralSettings::Part, QRadioButton *>> m_parts; // that another program offers
    QLabel *m_sides;                                                 // what the numbers of a range count
    OptionForm *m_form = nullptr;
    LayoutForm *m_layout = nullptr; // made after the first paint
    bool m_isPainted = false;
};

} // namespace host
