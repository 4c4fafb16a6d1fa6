// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

#include <vector>

class QStackedWidget;

namespace host {

class DialogSession;
class DocumentChoice;
class ChangeMarks;
class GeneralPage;
class MorePage;
class PageFrame;
class PageList;
class PreviewPane;
class SessionHistory;
class SummaryPage;

// The pages of a session and the list to choose one from: the general pane, the panels, the other options,
// the summary. Restores a panel before it is first shown, and saves when a page is left. The session is
// borrowed; the pages go, and part from the panels' views, before it.
class PageBook : public QWidget
{
    Q_OBJECT
public:
    explicit PageBook(QWidget *parent);
    ~PageBook() override;

    // What is printed, for the general page and a preview beside it; borrowed. Before the first session.
    void setDocuments(DocumentChoice *documents);
    // Starts the preview, once the window can be seen.
    void beginPreview();
    DialogSession *session() const { return m_session; } // null before setSession() and after clear()
    // Both are borrowed.
    void setSession(DialogSession *session, SessionHistory *history);
    void clear();

    // The row of a page by name: "general", "more", "summary", a panel's kind, its last part, or its title;
    // -1 when there is none.
    int pageNamed(const QString &name) const;
    int currentRow() const { return m_current; }
    // Of the page that is shown, for pageNamed(); empty when none is.
    QString currentName() const;
    // Of a page, for pageNamed(), and as the user reads it. Empty for no page.
    QString nameOf(int row) const;
    QString titleOf(int row) const;
    // What has been built of a page so far; null before it is first shown.
    QWidget *builtPage(int row) const;
    // Stays where it is when the current page must not be left. What is shown over the page goes.
    void showPage(int row);
    // Brings every page to what the session holds now.
    void refresh();
    // Marks what has changed.
    void showChanges();
    // Makes a control of the current page visible that is in a view of its panel that is not open.
    void openViewOf(QWidget *control);
    // Shows the control of a setting, or at least its page, and gives it the focus.
    void leadTo(const QString &key);
    // Moves `steps` pages on, as far as there are any.
    void turn(int steps);
    // How wide it must be to show the current page without scrolling sideways.
    int wantedWidth() const;
    int wantedHeight() const;
    PageList *list() const { return m_list; }
    // What shows one page at a time.
    QStackedWidget *stack() const { return m_stack; }
    // What holds the pages, and the preview beside them.
    QWidget *pages() const;

    // Whether what is typed on the general page makes sense; shows the place where it does not.
    bool checkTyped();

Q_SIGNALS:
    // A page has been left, and its settings saved.
    void left();
    // A page is shown.
    void shown();
    // The user chose something that is marked at once.
    void chosen();
    // The page that is shown has got more controls.
    void grown();
    void savePdfWanted();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Page
    {
        QString title;
        QString name;
        int panel = -1;
        PageFrame *frame = nullptr;   // made when the page is first shown
        ChangeMarks *marks = nullptr; // with it
    };
    void addPage(const QString &title, const QString &name, int panel = -1);
    void makeFrame(Page *page);
    QWidget *contentOf(const Page &page);
    void lockControls(const Page &page);
    const Page *pageAt(int row) const;
    bool leave();
    void followFocus(QWidget *now);
    void fitList();
    bool isGeneral() const;
    void fitPreview();
    void updatePreview();
    int rowOf(const QString &key) const;
    void showSummary();

    DialogSession *m_session = nullptr;
    SessionHistory *m_history = nullptr;
    std::vector<Page> m_pages;
    int m_current = -1;
    PageList *m_list;
    QWidget *m_area;
    QStackedWidget *m_stack;
    DocumentChoice *m_documents = nullptr;
    PreviewPane *m_preview = nullptr; // null where there is nothing to print
    bool m_previewBegun = false;
    GeneralPage *m_general = nullptr;
    MorePage *m_more = nullptr;
    SummaryPage *m_summary = nullptr;
};

} // namespace host
