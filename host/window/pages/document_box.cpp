// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/document_box.h"

#include "host/session/document_choice.h"
#include "host/window/look/foreign_text.h"

namespace host {

namespace {

constexpr int mostLines = 4;

} // namespace

DocumentBox::DocumentBox(DocumentChoice *choice, QWidget *parent) : QListWidget(parent), m_choice(choice)
{
    setAccessibleName(tr("Documents to print"));
    setTextElideMode(Qt::ElideMiddle);
    setTabKeyNavigation(false);
    setMaximumWidth(360);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (int i = 0; i < choice->paths().size(); ++i) {
        auto *item = new QListWidgetItem(oneLine(choice->name(i)), this);
        item->setToolTip(tooltipOf(choice->name(i)));
        item->setSizeHint({0, fontMetrics().height() + 2 * rowPadding});
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(choice->isIncluded(i) ? Qt::Checked : Qt::Unchecked);
    }
    setCurrentRow(choice->current());
    connect(this, &QListWidget::itemChanged, this, [this](QListWidgetItem *item) {
        m_choice->setIncluded(row(item), item->checkState() == Qt::Checked);
    });
    connect(this, &QListWidget::currentRowChanged, m_choice, &DocumentChoice::setCurrent);
}

QSize DocumentBox::sizeHint() const
{
    const int lines = qMin(mostLines, count());
    return {240, 2 * frameWidth() + lines * (fontMetrics().height() + 2 * rowPadding)};
}

} // namespace host
