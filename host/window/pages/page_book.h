// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

#include <vector>

class QScrollArea;
class QStackedWidget;

namespace host {

class DialogPreview;
class DialogSession;
class DocumentChoice;
class ChangeMarks;
class GeneralPage;
class HostPage;
class JobCostLabel;
class PageFrame;
class PageList;
class SessionHistory;
class SummaryPage;

// The pages of a session and the list to select one. Builds a page when it is first shown, restores its panel
// then, and saves the panel when the page is left. Documents, session and history are borrowed; call clear()
// before the session is destroyed, since its panels own their views.
class PageBook : public QWidget
{
    Q_OBJECT
public:
    PageBook(DocumentChoice *documents, QWidget *parent);
    ~PageBook() override;

    // Call when the window is visible. Creates the notes on the job that are shown with every page, for the
    // caller to place and own: the button of the preview, if there is something to print, and the job's cost.
    QList<QWidget *> addNotes();
    DialogSession *session() const { return m_session; } // null before setSession() and after clear()
    void setSession(DialogSession *session, SessionHistory *history);
    void clear();
    // The row of a page by name: "general", "print-mode", "more", "job", "summary", a panel's kind, its last
    // part, or its title; -1 if there is none.
    int pageNamed(const QString &name) const;
    int currentRow() const { return m_current; }              // -1 if there is none
    QString currentName() const { return nameOf(m_current); } // for pageNamed(); empty without a page
    QString nameOf(int row) const;
    QString titleOf(int row) const;    // localised
    QWidget *builtPage(int row) const; // its parts that have been built; null before it is first shown
    // Shows a page, unless the current page must not be left. Disabled while its panel queries a device.
    void showPage(int row);
    void turn(int steps); // shows the page that many rows further, or the last one in that direction
    void refresh();       // updates all pages from the session
    void showChanges();   // updates the marks of changed settings
    // Gives a control of the current page the focus, after opening the view of the panel that contains it;
    // the list gets the focus if the control is null or cannot have it.
    void focusOn(QWidget *control);
    // Shows the control of a setting, or at least its page, and gives it the focus.
    void leadTo(const QString &key);
    QSize wantedSize() const; // in pixels, to show the current page without scrolling; 0 × 0 without a page
    PageList *list() const { return m_list; }
    QStackedWidget *stack() const { return m_stack; } // shows one page at a time
    QWidget *pages() const { return m_area; }         // contains the stack, and the preview next to it
    // Whether all input is valid; if not, shows the invalid field.
    bool checkTyped();

Q_SIGNALS:
    void left();        // a page was left, and its panel saved
    void pageUpdated(); // another page is shown, or the current one has additional controls
    void chosen();      // the user has made a choice, which is marked
    void grown();       // the current page has additional controls
    void savePdfWanted();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Page
    {
        QString title;
        QString name;
        int panel = -1;
        PageFrame *frame = nullptr;   // null until the page is first shown
        ChangeMarks *marks = nullptr; // null until then, and for the summary
        HostPage *own = nullptr;      // null until then, and for panels and the summary
    };
    void addPage(const QString &title, const QString &name, int panel = -1);
    void makeFrame(Page *page);
    QWidget *contentOf(Page *page);
    HostPage *makeOwn(const QString &name);
    const Page *pageAt(int row) const;
    bool leave();
    void prepare(const Page &page);
    void showWaiting(const QString &what);
    void followFocus(QWidget *now);
    void fitParts();
    void updatePreview();
    int previewShare() const;
    void setRanges(const QString &ranges);
    int rowOf(const QString &key) const;
    void showSummary();

    DialogSession *m_session = nullptr;
    SessionHistory *m_history = nullptr;
    std::vector<Page> m_pages;
    int m_current = -1;
    bool m_isPreparing = false;
    PageList *m_list;
    QScrollArea *m_side; // contains the list
    QWidget *m_area;
    QStackedWidget *m_stack;
    DocumentChoice *m_documents = nullptr;
    DialogPreview *m_preview = nullptr; // null if there is nothing to print
    JobCostLabel *m_cost = nullptr;     // null before addNotes()
    GeneralPage *m_general = nullptr;
    SummaryPage *m_summary = nullptr;
};

} // namespace host
