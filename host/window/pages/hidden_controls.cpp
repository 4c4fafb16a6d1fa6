// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/hidden_controls.h"

#include "host/window/pages/page_controls.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace host {

namespace {

QList<QWidget *> rowOf(QWidget *control)
{
    const auto *grid = qobject_cast<QGridLayout *>(control->parentWidget()->layout());
    const int index = grid ? grid->indexOf(control) : -1;
    if (index < 0)
        return {control};
    int row = 0, column = 0, rows = 0, columns = 0;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    QList<QWidget *> widgets;
    for (column = 0; column < grid->columnCount(); ++column) {
        QLayoutItem *item = grid->itemAtPosition(row, column);
        if (item && item->widget() && !widgets.contains(item->widget()))
            widgets.append(item->widget());
    }
    return widgets;
}

} // namespace

HiddenControls::HiddenControls(const QList<QWidget *> &controls, const QWidget *page, QObject *parent)
    : QObject(parent)
{
    for (QWidget *control : controls) {
        take(control);
        const QList<QWidget *> row = rowOf(control);
        if (std::all_of(row.begin(), row.end(), [&](QWidget *widget) {
                return keywordOf(widget).isEmpty() || controls.contains(widget);
            })) {
            for (QWidget *widget : row)
                take(widget);
        }
        for (QLabel *label : page->findChildren<QLabel *>()) {
            if (label->buddy() == control)
                take(label);
        }
    }
}

void HiddenControls::take(QWidget *widget)
{
    widget->hide();
    widget->removeEventFilter(this);
    widget->installEventFilter(this);
}

bool HiddenControls::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShowToParent)
        static_cast<QWidget *>(watched)->hide();
    return false;
}

} // namespace host
