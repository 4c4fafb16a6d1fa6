// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDialog>

namespace host {

class DocumentChoice;
class PreviewPane;

// The preview in a separate window, as large as the screen allows, for screens on which the dialog has no
// space for it. Modal to its parent, and deleted when it is closed. The choice of documents is borrowed.
class PreviewDialog : public QDialog
{
    Q_OBJECT
public:
    PreviewDialog(DocumentChoice *choice, QWidget *parent);

    PreviewPane *pane() const { return m_pane; } // owned by the dialog

private:
    PreviewPane *m_pane;
};

} // namespace host
