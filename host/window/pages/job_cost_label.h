// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/look/elided_label.h"

#include <functional>

namespace host {

class DialogSession;
class DocumentChoice;
class PageCounter;

// What the job will take, such as "4 sheets, 8 sides, color". Empty while the pages of a document are not
// counted, and where they cannot be. Other programs count them; nothing waits for them. The choice of
// documents is borrowed.
class JobCostLabel : public ElidedLabel
{
    Q_OBJECT
public:
    // `session` gives the present session, or null where there is none.
    JobCostLabel(DocumentChoice *documents, std::function<const DialogSession *()> session, QWidget *parent);

public Q_SLOTS:
    // Call when settings have changed, or there is another session.
    void refresh();

private:
    QString costOf(const DialogSession &session);

    DocumentChoice *m_documents;
    std::function<const DialogSession *()> m_session;
    PageCounter *m_counter;
};

} // namespace host
