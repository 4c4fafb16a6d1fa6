// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

namespace host {

// In the footer, for users who do not know the keys: a button that searches for a setting and one that opens
// the page's help. Each names its key in its tool tip. A click leaves the focus where it is.
class GuideButtons : public QWidget
{
    Q_OBJECT
public:
    explicit GuideButtons(QWidget *parent);

Q_SIGNALS:
    void findWanted();
    void helpWanted();
};

} // namespace host
