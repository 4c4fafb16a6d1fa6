// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QPointer>

class QHBoxLayout;
class QWidget;

namespace host {

class DialogButton;
class DocumentChoice;
class PreviewPane;
struct PageSettings;
struct SheetFinish;

// The preview of the dialog: a pane next to the pages if there is space for it, otherwise a button that opens
// the preview in a separate window. A child of the widget with the pages.
class DialogPreview : public QObject
{
    Q_OBJECT
public:
    static constexpr int preferredWidth = 260; // of the pane, in pixels

    // Adds the pane to the row of the pages. The choice is borrowed and outlives this object.
    DialogPreview(DocumentChoice *documents, QHBoxLayout *row, QWidget *parent);

    // Renders pages from now on. Returns the button that opens the window, which is hidden while the pane is
    // shown; the caller places and owns it.
    QWidget *begin();
    // Shows the pane if the available width, in pixels, is sufficient.
    void setRoom(int width);
    bool isShown() const; // in the pane or in the window; false before begin()
    void setSettings(const PageSettings &settings, const SheetFinish &finish);

Q_SIGNALS:
    // The preview is shown in another place, and needs the current settings.
    void opened();
    // The user has excluded or included a page: the normalized page ranges that are to be printed.
    void rangesPicked(const QString &ranges);

private:
    void openWindow();

    DocumentChoice *m_documents;
    PreviewPane *m_pane;
    QPointer<PreviewPane> m_large;   // in the window, while it is open
    QPointer<DialogButton> m_button; // null before begin()
    bool m_hasBegun = false;
};

} // namespace host
