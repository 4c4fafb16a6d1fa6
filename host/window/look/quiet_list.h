// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAbstractItemView>

namespace host {

// A list view that reports its current item as focused to assistive technology only while the list has the
// focus. QListView reports it whenever it changes, so that a screen reader leaves the control in which the
// user is typing.
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
