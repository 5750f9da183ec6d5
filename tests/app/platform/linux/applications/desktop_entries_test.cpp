#include <quillon/app/platform/linux/applications/desktop_entries.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

DesktopEntry entry(std::string id, std::string windowClass = "", std::string executable = "") {
    DesktopEntry result;
    result.name = "Name of " + id;
    result.id = std::move(id);
    result.startupWMClass = std::move(windowClass);
    result.executable = std::move(executable);
    return result;
}

WindowFacts windowOf(std::string instance, std::string className) {
    WindowFacts window;
    window.instance = std::move(instance);
    window.className = std::move(className);
    return window;
}

ProcessFacts running(std::string executable) {
    ProcessFacts process;
    process.executable = std::move(executable);
    return process;
}

std::string idOf(const DesktopEntries& entries, const WindowFacts& window, const ProcessFacts& process = {}) {
    return entries.identify(window, process).bundleID;
}

TEST(DesktopEntriesTest, AnEntryGivesItsIdAndItsName) {
    const DesktopEntries entries({entry("gimp", "Gimp-2.10")});
    EXPECT_EQ(
        entries.identify(windowOf("gimp-2.10", "Gimp-2.10"), {}), (AppIdentity{"gimp", "Name of gimp"}));
    EXPECT_NE(entries.byID("gimp"), nullptr);
    EXPECT_EQ(entries.byID("gimp.desktop"), nullptr);
    EXPECT_EQ(entries.byID(""), nullptr);
}

TEST(DesktopEntriesTest, OneProcessIsSeveralApplicationsByTheirWindowClass) {
    const DesktopEntries entries(
        {entry("libreoffice-startcenter", "libreoffice-startcenter", "libreoffice"),
         entry("libreoffice-writer", "libreoffice-writer", "libreoffice"),
         entry("libreoffice-calc", "libreoffice-calc", "libreoffice")});
    const ProcessFacts office = running("soffice.bin");
    EXPECT_EQ(idOf(entries, windowOf("libreoffice", "libreoffice-writer"), office), "libreoffice-writer");
    EXPECT_EQ(idOf(entries, windowOf("libreoffice", "libreoffice-calc"), office), "libreoffice-calc");
}

TEST(DesktopEntriesTest, TheInstanceCountsBeforeTheClass) {
    const DesktopEntries entries({entry("browser", "Browser"), entry("browser-notes", "crx_notes")});
    EXPECT_EQ(idOf(entries, windowOf("crx_notes", "Browser")), "browser-notes");
    EXPECT_EQ(idOf(entries, windowOf("browser", "Browser")), "browser");
}

TEST(DesktopEntriesTest, TheWindowClassCountsBeforeTheIds) {
    const DesktopEntries entries({entry("designer"), entry("designer-qt6", "designer")});
    EXPECT_EQ(idOf(entries, windowOf("designer", "Designer")), "designer-qt6");
}

TEST(DesktopEntriesTest, TheCaseOfAWindowClassCountsOnlyBetweenSeveral) {
    const DesktopEntries entries({entry("one", "Editor"), entry("two", "editor")});
    EXPECT_EQ(idOf(entries, windowOf("", "editor")), "two");
    EXPECT_EQ(idOf(entries, windowOf("", "Editor")), "one");
    EXPECT_EQ(idOf(DesktopEntries({entry("one", "Editor")}), windowOf("", "EDITOR")), "one");
}

TEST(DesktopEntriesTest, IdsAreFoundByTheWindowClassWhateverItsCase) {
    const DesktopEntries entries({entry("mousepad"), entry("org.gnome.Nautilus"), entry("sun-editor")});
    EXPECT_EQ(idOf(entries, windowOf("mousepad", "Mousepad")), "mousepad");
    EXPECT_EQ(idOf(entries, windowOf("org.gnome.Nautilus", "Org.gnome.Nautilus")), "org.gnome.Nautilus");
    EXPECT_EQ(idOf(entries, windowOf("org.gnome.nautilus", "")), "org.gnome.Nautilus");
    EXPECT_EQ(idOf(entries, windowOf("", "Sun Editor")), "sun-editor");
}

TEST(DesktopEntriesTest, TheLastPartOfAnIdIsEnough) {
    const DesktopEntries entries({entry("org.gnome.gedit"), entry("org.kde.kate")});
    EXPECT_EQ(idOf(entries, windowOf("gedit", "Gedit")), "org.gnome.gedit");
    EXPECT_EQ(idOf(entries, windowOf("kate", "kate")), "org.kde.kate");
}

TEST(DesktopEntriesTest, OfSeveralTheOneWhoseProgramRunsIsTaken) {
    const DesktopEntries entries(
        {entry("editor-beta", "Editor", "editor-beta"), entry("editor", "Editor", "editor")});
    EXPECT_EQ(idOf(entries, windowOf("", "Editor"), running("editor-beta")), "editor-beta");
    EXPECT_EQ(idOf(entries, windowOf("", "Editor"), running("editor")), "editor");
}

TEST(DesktopEntriesTest, ElseTheOneThatIsShownInMenusAndTheShortestId) {
    DesktopEntry hidden = entry("ed", "Editor");
    hidden.isShown = false;
    const DesktopEntries entries({hidden, entry("editor-new-window", "Editor"), entry("editor", "Editor")});
    EXPECT_EQ(idOf(entries, windowOf("", "Editor")), "editor");
}

DesktopEntry hidden(DesktopEntry entry) {
    entry.isShown = false;
    return entry;
}

TEST(DesktopEntriesTest, AHiddenEntryLosesToTheOneWhoseProgramRuns) {
    const DesktopEntries entries(
        {hidden(entry("org.kde.viewer_importer", "viewer", "viewer_importer")),
         entry("org.kde.viewer", "", "viewer")});
    EXPECT_EQ(idOf(entries, windowOf("viewer", "viewer"), running("viewer")), "org.kde.viewer");
    EXPECT_EQ(
        idOf(entries, windowOf("viewer", "viewer"), running("viewer_importer")), "org.kde.viewer_importer");
}

TEST(DesktopEntriesTest, AHiddenEntryIsTakenWhereNoOtherStartsTheProgram) {
    const DesktopEntries entries({hidden(entry("settings", "Settings", "settings-launcher"))});
    EXPECT_EQ(idOf(entries, windowOf("", "Settings"), running("settings-program")), "settings");
    EXPECT_EQ(idOf(entries, windowOf("", "Settings")), "settings");
}

TEST(DesktopEntriesTest, AShownEntryIsTakenWhateverProgramRuns) {
    const DesktopEntries entries(
        {entry("notes", "Notes", "browser-launcher"), entry("browser", "", "browser")});
    EXPECT_EQ(idOf(entries, windowOf("", "Notes"), running("browser")), "notes");
}

TEST(DesktopEntriesTest, AHiddenEntryOfASandboxIsTakenBesideAProgramOutsideOfIt) {
    const DesktopEntries entries(
        {hidden(entry("org.viewer", "viewer", "flatpak")), entry("viewer-here", "", "viewer")});
    ProcessFacts flatpak = running("viewer");
    flatpak.flatpakID = "org.viewer";
    EXPECT_EQ(idOf(entries, windowOf("viewer", "viewer"), flatpak), "org.viewer");
}

TEST(DesktopEntriesTest, AWindowThatIsNotKnownTakesTheApplicationOfTheOneItBelongsTo) {
    const DesktopEntries entries({entry("writer"), entry("calc")});
    const AppIdentity writer{"writer", "Writer"};
    const AppIdentity calc{"calc", "Calc"};
    const AppIdentity unknown{"soffice.bin", "soffice.bin"};
    const auto owned = [&entries](const AppIdentity& own, const std::vector<AppIdentity>& owners) {
        return entries.identifyOwned(own, owners);
    };
    EXPECT_EQ(owned(unknown, {writer, calc}), writer);
    EXPECT_EQ(owned(unknown, {unknown, calc}), calc) << "a dialog of a dialog";
    EXPECT_EQ(owned(calc, {writer}), calc) << "a window that is known";
    EXPECT_EQ(owned(unknown, {}), unknown);
    EXPECT_EQ(owned(unknown, {{"another", "Another"}}), unknown) << "nothing is won";
}

TEST(DesktopEntriesTest, AGtkApplicationIdIsFound) {
    const DesktopEntries entries({entry("org.gnome.TextEditor")});
    WindowFacts window = windowOf("something", "Else");
    window.gtkApplicationID = "org.gnome.TextEditor";
    EXPECT_EQ(idOf(entries, window), "org.gnome.TextEditor");
}

TEST(DesktopEntriesTest, SandboxesTellTheirApplication) {
    const DesktopEntries entries({entry("org.inkscape.Inkscape"), entry("firefox_firefox")});
    ProcessFacts flatpak = running("bwrap");
    flatpak.flatpakID = "org.inkscape.Inkscape";
    EXPECT_EQ(idOf(entries, windowOf("strange", "Strange"), flatpak), "org.inkscape.Inkscape");
    ProcessFacts snap = running("firefox-bin");
    snap.snapEntryID = "firefox_firefox";
    EXPECT_EQ(idOf(entries, windowOf("Navigator", "Nightly"), snap), "firefox_firefox");
}

TEST(DesktopEntriesTest, AControlGroupTellsUnlessItIsATerminals) {
    DesktopEntry terminal = entry("org.kde.konsole");
    terminal.isTerminal = true;
    const DesktopEntries entries({entry("org.kde.dolphin"), terminal});
    ProcessFacts process = running("wrapper");
    process.controlGroupID = "org.kde.dolphin";
    EXPECT_EQ(idOf(entries, windowOf("x", "Y"), process), "org.kde.dolphin");
    process.controlGroupID = "org.kde.konsole";
    EXPECT_EQ(idOf(entries, windowOf("x", "Y"), process), "wrapper");
    EXPECT_EQ(idOf(entries, windowOf("konsole", "konsole"), process), "org.kde.konsole");
}

TEST(DesktopEntriesTest, TheExecutableTellsLast) {
    const DesktopEntries entries({entry("com.example.Sketch", "", "sketchpad"), entry("xfig")});
    EXPECT_EQ(idOf(entries, windowOf("a", "B"), running("sketchpad")), "com.example.Sketch");
    EXPECT_EQ(idOf(entries, windowOf("a", "B"), running("xfig")), "xfig");
}

TEST(DesktopEntriesTest, AnInterpreterIsNobodysExecutable) {
    const DesktopEntries entries({entry("com.example.Tool", "", "python3")});
    EXPECT_EQ(idOf(entries, windowOf("other", "Other"), running("python3")), "python3");
    EXPECT_EQ(idOf(entries, windowOf("other", "Other")), "other");
}

TEST(DesktopEntriesTest, AnApplicationThatIsNotInstalledGoesByItsProgramsName) {
    const DesktopEntries none;
    EXPECT_EQ(
        none.identify(windowOf("homemade", "Homemade"), running("homemade-bin")),
        (AppIdentity{"homemade-bin", "homemade-bin"}));
    EXPECT_EQ(none.identify(windowOf("homemade", "Homemade"), {}), (AppIdentity{"homemade", "homemade"}));
    EXPECT_EQ(
        none.identify(windowOf("sun-awt-X11-XFramePeer", "net-sketch-Main"), {}),
        (AppIdentity{"net-sketch-Main", "net-sketch-Main"}));
    EXPECT_EQ(none.identify({}, {}), AppIdentity());
}

TEST(DesktopEntriesTest, OrByTheIdThatItGivesItself) {
    const DesktopEntries none;
    ProcessFacts flatpak = running("bwrap");
    flatpak.flatpakID = "org.example.Sketch";
    EXPECT_EQ(
        none.identify(windowOf("sketch", "Sketch"), flatpak), (AppIdentity{"org.example.Sketch", "Sketch"}));
    WindowFacts gtk;
    gtk.gtkApplicationID = "org.example.Notes";
    EXPECT_EQ(none.identify(gtk, {}), (AppIdentity{"org.example.Notes", "org.example.Notes"}));
}

TEST(DesktopEntriesTest, AnEntryWithoutANameGoesByItsId) {
    DesktopEntry nameless = entry("xfig");
    nameless.name.clear();
    EXPECT_EQ(DesktopEntries({nameless}).identify(windowOf("xfig", ""), {}), (AppIdentity{"xfig", "xfig"}));
}

TEST(DesktopEntriesTest, OfTwoWithOneIdTheFirstCountsAndThoseWithoutAreLeftOut) {
    DesktopEntry first = entry("xfig");
    first.name = "First";
    const DesktopEntries entries({first, entry("xfig"), entry("")});
    EXPECT_EQ(entries.all().size(), 1U);
    EXPECT_EQ(entries.byID("xfig")->name, "First");
}

} // namespace
} // namespace quillon
