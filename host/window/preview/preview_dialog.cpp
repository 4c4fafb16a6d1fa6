// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/preview/preview_dialog.h"

#include "host/preview/page_tools.h"
#include "host/session/document_choice.h"
#include "host/window/look/dialog_button.h"
#include "host/window/preview/preview_pane.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr QSize largestSize(900, 1100); // pixels
constexpr int screenMargin = 60;        // pixels of the screen that remain free

} // namespace

PreviewDialog::PreviewDialog(DocumentChoice *choice, QWidget *parent)
    : QDialog(parent), m_pane(new PreviewPane(choice, this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    setWindowTitle(tr("Preview"));
    auto *close = new DialogButton(tr("&Close"), this);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(12, 0, 12, 12);
    row->addStretch(1);
    row->addWidget(close);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_pane, 1);
    column->addLayout(row);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    const QSize room = screen()->availableSize() - QSize(screenMargin, screenMargin);
    resize(largestSize.boundedTo(room));
    m_pane->begin(PageTools::installed());
    close->setFocus();
}

} // namespace host
