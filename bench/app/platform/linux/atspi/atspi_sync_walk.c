/* The menus of a running application, read as programs usually do: with libatspi, one call after the other.
 *
 *     atspi-sync-walk PID [--dump]
 *
 * Finds the first menu bar in the application's windows and asks every item for its name, role, states, key
 * binding and children. Prints the number of items and the milliseconds that finding and walking took; with
 * --dump also one line for each item: depth, role, usable, key binding and name, separated by tabs. */

#include <atspi/atspi.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

static int items;
static int dumps;

static double milliseconds(void) {
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return (double)now.tv_sec * 1e3 + (double)now.tv_nsec / 1e6;
}

static AtspiAccessible* application(unsigned pid) {
    AtspiAccessible* desktop = atspi_get_desktop(0);
    AtspiAccessible* found = NULL;
    const int count = atspi_accessible_get_child_count(desktop, NULL);
    for (int i = 0; i < count && !found; ++i) {
        AtspiAccessible* child = atspi_accessible_get_child_at_index(desktop, i, NULL);
        if (child && atspi_accessible_get_process_id(child, NULL) == pid)
            found = g_object_ref(child);
        g_clear_object(&child);
    }
    g_object_unref(desktop);
    return found;
}

static AtspiAccessible* menu_bar(AtspiAccessible* from, int depth) {
    if (atspi_accessible_get_role(from, NULL) == ATSPI_ROLE_MENU_BAR)
        return g_object_ref(from);
    AtspiAccessible* found = NULL;
    const int count = depth < 6 ? atspi_accessible_get_child_count(from, NULL) : 0;
    for (int i = 0; i < count && !found; ++i) {
        AtspiAccessible* child = atspi_accessible_get_child_at_index(from, i, NULL);
        if (child)
            found = menu_bar(child, depth + 1);
        g_clear_object(&child);
    }
    return found;
}

static void
print_line(int depth, AtspiRole role, AtspiStateSet* states, const char* binding, const char* name) {
    const int usable = states && atspi_state_set_contains(states, ATSPI_STATE_ENABLED)
                       && atspi_state_set_contains(states, ATSPI_STATE_SENSITIVE);
    printf("%d\t%d\t%d\t%s\t%s\n", depth, (int)role, usable, binding ? binding : "", name ? name : "");
}

static void walk(AtspiAccessible* item, int depth) {
    char* name = atspi_accessible_get_name(item, NULL);
    const AtspiRole role = atspi_accessible_get_role(item, NULL);
    AtspiStateSet* states = atspi_accessible_get_state_set(item);
    AtspiAction* action = atspi_accessible_get_action_iface(item);
    char* binding = action ? atspi_action_get_key_binding(action, 0, NULL) : NULL;
    ++items;
    if (dumps)
        print_line(depth, role, states, binding, name);
    g_free(name);
    g_free(binding);
    g_clear_object(&states);
    g_clear_object(&action);

    const int count = depth < 12 ? atspi_accessible_get_child_count(item, NULL) : 0;
    for (int i = 0; i < count; ++i) {
        AtspiAccessible* child = atspi_accessible_get_child_at_index(item, i, NULL);
        if (child)
            walk(child, depth + 1);
        g_clear_object(&child);
    }
}

int main(int argc, char** argv) {
    if (argc < 2) {
        fprintf(stderr, "usage: atspi-sync-walk PID [--dump]\n");
        return 2;
    }
    dumps = argc > 2 && strcmp(argv[2], "--dump") == 0;
    const double start = milliseconds();
    atspi_init();
    AtspiAccessible* app = application((unsigned)strtoul(argv[1], NULL, 10));
    AtspiAccessible* bar = NULL;
    const int windows = app ? atspi_accessible_get_child_count(app, NULL) : 0;
    for (int i = 0; i < windows && !bar; ++i) {
        AtspiAccessible* window = atspi_accessible_get_child_at_index(app, i, NULL);
        if (window)
            bar = menu_bar(window, 0);
        g_clear_object(&window);
    }
    if (!bar) {
        fprintf(stderr, "no menu bar\n");
        return 1;
    }
    const double found = milliseconds();
    const int tops = atspi_accessible_get_child_count(bar, NULL);
    for (int i = 0; i < tops; ++i) {
        AtspiAccessible* top = atspi_accessible_get_child_at_index(bar, i, NULL);
        if (top)
            walk(top, 0);
        g_clear_object(&top);
    }
    const double done = milliseconds();
    printf("items %d find %.3f walk %.3f total %.3f\n", items, found - start, done - found, done - start);
    g_object_unref(bar);
    g_object_unref(app);
    return 0;
}
