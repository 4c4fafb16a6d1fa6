// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/page_settings.h"
#include "host/session/sheet_finish.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace host {

class DocumentChoice;
class Preview;
class PreviewSheet;
class PreviewStrip;
struct PageTools;

// Shows the document as it will be printed: one page large, the others as a strip. Inactive until begin();
// then it follows the choice of documents, and renders pages while it is visible.
class PreviewPane : public QWidget
{
    Q_OBJECT
public:
    // The choice is borrowed and outlives the pane.
    PreviewPane(DocumentChoice *choice, QWidget *parent);
    ~PreviewPane() override;

    void begin(const PageTools &tools);
    void setSettings(const PageSettings &settings, const SheetFinish &finish);

    QSize sizeHint() const override { return {240, 400}; }

Q_SIGNALS:
    // The user has excluded or included a page: the normalized page ranges that are to be printed.
    void rangesPicked(const QString &ranges);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void build();
    void buildZoom(QHBoxLayout *row);
    void renderSharp();
    void look();
    void factsChanged();
    void showPage(int page);
    void showMade(int page);
    void applySettings();
    void showRanges();
    void toggle(int page);
    QString caption() const;

    DocumentChoice *m_choice;
    Preview *m_preview = nullptr;
    PageSettings m_settings;
    SheetFinish m_finish;
    QString m_ranges;              // normalized; the printed pages
    bool m_areRangesShown = false; // whether all pages are shown, with those that are not printed pale
    int m_page = 0;                // from 0
    int m_count = 0;
    QSize m_picture; // of that page in its orientation; empty while it is not available
    PreviewSheet *m_sheet = nullptr;
    QLabel *m_caption = nullptr;
    QLabel *m_zoom = nullptr;
    QToolButton *m_smaller = nullptr;
    QToolButton *m_larger = nullptr;
    QToolButton *m_back = nullptr;
    QToolButton *m_forth = nullptr;
    PreviewStrip *m_strip = nullptr;
};

} // namespace host
