// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/pages/host_page.h"

#include <QStringList>

class QGridLayout;

namespace host {

class DialogSession;
class OptionForm;

// The options of the PPD that no other page shows, such as finishing, in groups. Creates the rows that fit on
// a screen immediately, and the others in parts after the first paint. The session is borrowed and outlives
// the page.
class MorePage : public HostPage
{
    Q_OBJECT
public:
    explicit MorePage(DialogSession *session, QWidget *parent = nullptr);
    void refresh() override;
    QString problem() const override;
    void showProblem() override;

Q_SIGNALS:
    // Rows have been added.
    void grown();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    // Some rows of one group.
    struct Part
    {
        QString title; // null for rows that continue the previous part
        QStringList keywords;
    };
    QList<Part> partsOf(const DialogSession &session) const;
    void build(const Part &part);
    void buildNext();

    DialogSession *m_session;
    QGridLayout *m_grid;
    QList<Part> m_toBuild;
    OptionForm *m_form;
    bool m_painted = false;
};

} // namespace host
