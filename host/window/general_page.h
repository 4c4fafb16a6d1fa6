// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

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
class LayoutForm;
class OptionForm;

// What every printer can be asked: copies, pages, and of paper, tray and two-sided printing what its PPD has.
// Writes to the session at once; the session is borrowed and outlives the page.
class GeneralPage : public QWidget
{
    Q_OBJECT
public:
    explicit GeneralPage(DialogSession *session, QWidget *parent = nullptr);

    // Nil string when everything typed here makes sense.
    QString problem() const;
    // Puts the cursor where the problem is.
    void showProblem();
    void refresh();

Q_SIGNALS:
    void chosen(const QString &keyword);
    // Which pages are printed, or how, has become another.
    void pagesChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void addCopies(QGridLayout *grid);
    void enableCollate();
    void addPages(QGridLayout *grid);
    void pagesEdited();
    QString pagesProblem() const;
    void setProblemShown(bool shown);
    void paintProblem();

    DialogSession *m_session;
    QSpinBox *m_copies;
    QCheckBox *m_collate;
    QRadioButton *m_allPages;
    QRadioButton *m_somePages;
    QLineEdit *m_pages;
    QLabel *m_problem;
    OptionForm *m_form = nullptr;
    LayoutForm *m_layout = nullptr;
};

} // namespace host
