// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/changing_label.h"

#include "host/window/look/announced.h"
#include "host/window/look/centred_label.h"

#include <QLayout>
#include <QLayoutItem>
#include <QTimer>

#include <chrono>
#include <memory>

namespace host {

namespace {

constexpr std::chrono::minutes lateReading(2); // by a busy screen reader

} // namespace

QLabel *showAnnounced(QLabel *label, const QString &text)
{
    QWidget *const page = label->parentWidget();
    auto *next = centredLabel(page);
    makeAnnounced(next);
    next->setFont(label->font());
    next->setText(text);
    next->setAccessibleName(text);
    const std::unique_ptr<QLayoutItem> replaced(page->layout()->replaceWidget(label, next));
    next->stackUnder(label); // screen readers use this order
    label->hide();
    QTimer::singleShot(lateReading, label, &QObject::deleteLater);
    next->show();
    return next;
}

} // namespace host
