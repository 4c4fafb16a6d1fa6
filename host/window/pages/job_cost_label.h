// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/look/elided_label.h"

#include <functional>

namespace host {

class DialogSession;
class DocumentChoice;
class PageCounter;

// Shows the paper consumption of the job, such as "4 sheets, 8 sides, color". Separate programs count the
// pages in the background; the label is empty until all are counted, or if that is not possible. The choice
// of documents is borrowed.
class JobCostLabel : public ElidedLabel
{
    Q_OBJECT
public:
    // `session` returns the current session, or null if there is none.
    JobCostLabel(DocumentChoice *documents, std::function<const DialogSession *()> session, QWidget *parent);

public Q_SLOTS:
    // Call when settings have changed, or the session is replaced.
    void refresh();

private:
    QString costOf(const DialogSession &session);

    DocumentChoice *m_documents;
    std::function<const DialogSession *()> m_session;
    PageCounter *m_counter;
};

} // namespace host
