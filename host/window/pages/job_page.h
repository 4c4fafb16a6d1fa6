// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

class QGridLayout;
class QLineEdit;
class QTimeEdit;

namespace platform {
class ChoiceBox;
}

namespace host {

class DialogSession;

// The page for what the print server does with the job: when it is printed, its priority, cover sheets and
// billing information. Writes to the session, which is borrowed and outlives it, at once.
class JobPage : public QWidget
{
    Q_OBJECT
public:
    explicit JobPage(DialogSession *session, QWidget *parent = nullptr);

    // Shows the present settings of the session.
    void refresh();

Q_SIGNALS:
    void chosen(const QString &name); // the job option

private:
    platform::ChoiceBox *addBox(const QString &name, const QString &label, const QStringList &values,
                                QGridLayout *grid);
    void addHold(QGridLayout *grid);
    void addBilling(QGridLayout *grid);
    void set(const QString &name, const QString &value);
    void setHold();
    void setSheets();
    void showValue(platform::ChoiceBox *box, const QString &value);

    DialogSession *m_session;
    platform::ChoiceBox *m_hold = nullptr;
    QTimeEdit *m_time = nullptr; // enabled while the job is to be printed at a time of day
    platform::ChoiceBox *m_priority = nullptr;
    platform::ChoiceBox *m_before = nullptr; // the cover sheets
    platform::ChoiceBox *m_after = nullptr;
    QLineEdit *m_billing = nullptr;
};

} // namespace host
