// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/look/quiet_list.h"

#include <QListWidget>

namespace host {

// The list of pages at the side of the dialog. As wide as its longest name if there is space.
class PageList : public QuietList<QListWidget>
{
    Q_OBJECT
public:
    explicit PageList(QWidget *parent = nullptr);

    void addPage(const QString &title);
    // Sets whether the page has changed settings.
    void setChanged(int row, bool changed);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {120, 0}; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void takePalette();

    mutable int m_width = 0; // in pixels, for the longest name in this font; 0 until it is asked for
};

} // namespace host
