// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAbstractItemView>

namespace host {

// A list view whose current item is reported to assistive technology as focused only while the list has the
// focus. QListView reports it whenever it changes, which makes a screen reader leave the control that the
// user is typing in.
template <typename List>
class QuietList : public List
{
public:
    using List::List;

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override
    {
        if (this->hasFocus())
            List::currentChanged(current, previous);
        else
            QAbstractItemView::currentChanged(current, previous);
    }
};

} // namespace host
