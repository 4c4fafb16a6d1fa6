// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/look/quiet_list.h"

#include <QListView>

namespace host {

class Preview;
class PreviewStripModel;

// All pages of a preview, small, in a row. Only those in view are made. A check box on each page says whether
// it is printed. The preview is borrowed.
class PreviewStrip : public QuietList<QListView>
{
    Q_OBJECT
public:
    PreviewStrip(Preview *preview, QWidget *parent);

    void setCount(int pages);
    int current() const { return currentIndex().row(); }
    void setCurrent(int page);
    // The normalized ranges of the pages that are printed, and whether the check boxes are there.
    void setPrinted(const QString &ranges, bool isOffered);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {120, sizeHint().height()}; }

Q_SIGNALS:
    void picked(int page);
    // The user has ticked or unticked the box of a page.
    void toggled(int page);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    PreviewStripModel *m_model;
};

} // namespace host
