// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QListWidget>

namespace host {

class DocumentChoice;

// The documents of a job, each with a check box that includes it, in a list of a few lines. The current
// document is shown in the preview. The choice is borrowed and outlives the list.
class DocumentBox : public QListWidget
{
    Q_OBJECT
public:
    DocumentBox(DocumentChoice *choice, QWidget *parent);

    // Above and below each name, in pixels.
    static constexpr int rowPadding = 3;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {120, sizeHint().height()}; }

private:
    DocumentChoice *m_choice;
};

} // namespace host
