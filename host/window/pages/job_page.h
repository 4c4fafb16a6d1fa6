// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/pages/host_page.h"

class QGridLayout;
class QLineEdit;
class QTimeEdit;

namespace platform {
class ChoiceBox;
}

namespace host {

class DialogSession;

// The page for the handling of the job by the print server: when it is printed, its priority, cover sheets
// and billing information. Writes to the session immediately, which is borrowed and outlives the page.
class JobPage : public HostPage
{
    Q_OBJECT
public:
    explicit JobPage(DialogSession *session, QWidget *parent = nullptr);

    void refresh() override;

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
    QTimeEdit *m_time = nullptr; // enabled if the job is to be printed at a time of day
    platform::ChoiceBox *m_priority = nullptr;
    platform::ChoiceBox *m_before = nullptr; // the cover sheets
    platform::ChoiceBox *m_after = nullptr;
    QLineEdit *m_billing = nullptr;
};

} // namespace host
