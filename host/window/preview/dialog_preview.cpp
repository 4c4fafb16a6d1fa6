// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/preview/dialog_preview.h"

#include "host/preview/page_tools.h"
#include "host/window/look/access_keys.h"
#include "host/window/look/dialog_button.h"
#include "host/window/look/explanations.h"
#include "host/window/preview/preview_dialog.h"
#include "host/window/preview/preview_pane.h"

#include <QHBoxLayout>

namespace host {

namespace {

// Width of the pane, in pixels.
constexpr int leastWidth = 160;
constexpr int mostWidth = 420;

} // namespace

DialogPreview::DialogPreview(DocumentChoice *documents, QHBoxLayout *row, QWidget *parent)
    : QObject(parent), m_documents(documents), m_pane(new PreviewPane(documents, parent))
{
    m_pane->hide();
    row->addWidget(m_pane);
    connect(m_pane, &PreviewPane::rangesPicked, this, &DialogPreview::rangesPicked);
}

QWidget *DialogPreview::begin()
{
    m_hasBegun = true;
    auto *window = static_cast<QWidget *>(parent())->window();
    m_button = new DialogButton(tr("Preview…"), window);
    m_button->setMinimumWidth(0);
    m_button->setFocusPolicy(Qt::TabFocus);
    m_button->setProperty(AccessKeys::yieldingProperty, true);
    m_button->setToolTip(tr("Show the pages in a separate window"));
    m_button->setWhatsThis(explanationOf(QStringLiteral("preview")));
    m_button->setHidden(!m_pane->isHidden());
    connect(m_button, &QPushButton::clicked, this, &DialogPreview::openWindow);
    Q_EMIT opened();
    m_pane->begin(PageTools::installed());
    return m_button;
}

void DialogPreview::setRoom(int width)
{
    const bool isWide = width >= leastWidth;
    m_pane->setVisible(isWide);
    if (isWide)
        m_pane->setFixedWidth(qMin(width, mostWidth));
    if (m_button)
        m_button->setHidden(isWide);
}

bool DialogPreview::isShown() const
{
    return m_large || (m_hasBegun && !m_pane->isHidden());
}

void DialogPreview::setSettings(const PageSettings &settings, const SheetFinish &finish)
{
    if (!m_pane->isHidden())
        m_pane->setSettings(settings, finish);
    if (m_large)
        m_large->setSettings(settings, finish);
}

void DialogPreview::openWindow()
{
    auto *dialog = new PreviewDialog(m_documents, static_cast<QWidget *>(parent())->window());
    m_large = dialog->pane();
    connect(m_large, &PreviewPane::rangesPicked, this, &DialogPreview::rangesPicked);
    Q_EMIT opened();
    dialog->show();
}

} // namespace host
