// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// GTK's print dialog for a queue, with the printer's options shown. Reports like FirstPaint when the last page of
// options is painted. Usage: gtk_print_dialog QUEUE
#include <gtk/gtk.h>
#include <gtk/gtkunixprint.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

static const char *queue;

static long resident_kilobytes(void)
{
    FILE *rollup = fopen("/proc/self/smaps_rollup", "r");
    char line[256];
    long kilobytes = 0;
    while (rollup && fgets(line, sizeof line, rollup)) {
        if (sscanf(line, "Rss: %ld", &kilobytes) == 1)
            break;
    }
    if (rollup)
        fclose(rollup);
    return kilobytes;
}

static gboolean report(gpointer unused)
{
    struct timespec now;
    const char *start = getenv("KELMAR_T0_NS");
    (void)unused;
    clock_gettime(CLOCK_MONOTONIC, &now);
    const long long since = now.tv_sec * 1000000000LL + now.tv_nsec - (start ? atoll(start) : 0);
    printf("process start to options painted\t%.3f\tms\nresident memory with options\t%ld\tkB\n", (double)since / 1e6,
           resident_kilobytes());
    fflush(stdout);
    _Exit(0);
}

// The frame is flushed after the signal; an idle handler of this priority follows.
static gboolean painted(GtkWidget *widget, cairo_t *cairo, gpointer unused)
{
    (void)widget, (void)cairo, (void)unused;
    g_idle_add_full(GDK_PRIORITY_REDRAW + 10, report, NULL, NULL);
    return FALSE;
}

static void find_notebook(GtkWidget *widget, gpointer found)
{
    if (GTK_IS_NOTEBOOK(widget))
        *(GtkWidget **)found = widget;
    else if (GTK_IS_CONTAINER(widget))
        gtk_container_forall(GTK_CONTAINER(widget), find_notebook, found);
}

// The pages of options are filled when the printer's details are known.
static gboolean show_options(gpointer dialog)
{
    GtkWidget *notebook = NULL;
    find_notebook(dialog, &notebook);
    int page = notebook ? gtk_notebook_get_n_pages(GTK_NOTEBOOK(notebook)) : 0;
    while (page-- > 0) {
        GtkWidget *options = gtk_notebook_get_nth_page(GTK_NOTEBOOK(notebook), page);
        if (!gtk_widget_get_visible(options))
            continue;
        gtk_notebook_set_current_page(GTK_NOTEBOOK(notebook), page);
        g_signal_connect_after(options, "draw", G_CALLBACK(painted), NULL);
        gtk_widget_queue_draw(options);
        return G_SOURCE_REMOVE;
    }
    fputs("there are no options\n", stderr);
    exit(1);
}

static gboolean is_ready(gpointer dialog)
{
    GtkPrinter *printer = gtk_print_unix_dialog_get_selected_printer(dialog);
    if (!printer || strcmp(gtk_printer_get_name(printer), queue) != 0 || !gtk_printer_has_details(printer))
        return G_SOURCE_CONTINUE;
    g_idle_add(show_options, dialog);
    return G_SOURCE_REMOVE;
}

int main(int argc, char **argv)
{
    gtk_init(&argc, &argv);
    queue = argc > 1 ? argv[1] : "";
    GtkWidget *dialog = gtk_print_unix_dialog_new("Print", NULL);
    GtkPrintSettings *settings = gtk_print_settings_new();
    gtk_print_settings_set_printer(settings, queue);
    gtk_print_unix_dialog_set_settings(GTK_PRINT_UNIX_DIALOG(dialog), settings);
    gtk_widget_show(dialog);
    g_timeout_add(1, is_ready, dialog);
    gtk_main();
}
