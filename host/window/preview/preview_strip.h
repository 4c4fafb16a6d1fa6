// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/look/quiet_list.h"

#include <QListView>

namespace host {

class Preview;
class PreviewStripModel;

// All pages of a preview as thumbnails in a row. Only visible ones are rendered. A check box on each page
// shows whether it is printed. The preview is borrowed.
class PreviewStrip : public QuietList<QListView>
{
    Q_OBJECT
public:
    PreviewStrip(Preview *preview, QWidget *parent);

    void setCount(int pages);
    int current() const { return currentIndex().row(); }
    void setCurrent(int page);
    // Sets the normalized ranges of the printed pages, and whether the check boxes are shown.
    void setPrinted(const QString &ranges, bool isOffered);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {120, sizeHint().height()}; }

Q_SIGNALS:
    void picked(int page);
    // The user has toggled the check box of a page.
    void toggled(int page);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    PreviewStripModel *m_model;
};

} // namespace host
