// The documents: each link leads somewhere, and each picture is shown.
#include "tests/session.h"

#include <cctype>
#include <regex>
#include <set>

using namespace tessaly;
namespace fs = std::filesystem;

namespace {

std::string document(const fs::path& path) { return session::file(fs::path(TESSALY_SOURCE_DIR) / path); }

// Returns the text with each heading as its anchor after "#-", such as "#-taking-back-a-click".
std::string withanchors(const std::string& text) {
    std::string anchors = std::regex_replace(text, std::regex("[^[:alnum:]# \n-]"), "");
    for (char& c : anchors) c = c == ' ' ? '-' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return anchors;
}

// Returns what the groups of a pattern match; a line end becomes a blank.
std::set<std::string> matches(const std::string& text, const char* pattern) {
    std::set<std::string> found;
    const std::regex regex(pattern);
    for (std::sregex_iterator at(text.begin(), text.end(), regex), end; at != end; ++at)
        found.insert(std::regex_replace((*at)[1].str(), std::regex("\n"), " "));
    return found;
}

}  // namespace

// Catches an entry that no test names, and a title that differs from the one in the tests.
TEST(documents, eachEntryOfNotBugsIsNamedWhereATestShowsIt) {
    const std::set<std::string> withouttest{"Two programs that replay in one folder mix up their elements, or end"};
    std::string tests;
    for (const auto& file : fs::recursive_directory_iterator(TESSALY_SOURCE_DIR "/tests"))
        if (file.path().extension() == ".play" || file.path().extension() == ".cpp")
            tests += session::file(file.path());
    const auto titles = matches(document("NOT-BUGS.md"), R"(\n\*\*([^*]+)\.\*\*)");
    const auto named = matches(tests, R"(\n(?:#|//) NOT-BUGS: (.+))");
    EXPECT_GT(titles.size(), 70u);
    for (const std::string& title : titles) EXPECT_NE(named.contains(title), withouttest.contains(title)) << title;
    for (const auto* known : {&named, &withouttest})
        for (const std::string& title : *known) EXPECT_TRUE(titles.contains(title)) << title;
}

TEST(documents, linksLeadSomewhereAndPicturesAreShown) {
    const std::string pages = document("docs/guide.md") + document("README.md");
    for (const auto& picture : fs::directory_iterator(TESSALY_SOURCE_DIR "/docs/pictures"))
        EXPECT_NE(pages.find("pictures/" + picture.path().filename().string() + ")"), std::string::npos) << picture;
    for (const fs::path page : {"README.md", "NOT-BUGS.md", "ARCHITECTURE.md", "docs/guide.md"})
        for (const std::string& link : matches(document(page), R"(\]\(([^):]*)\))")) {
            const std::string file = link.substr(0, link.find('#')), anchor = link.substr(file.size());
            const std::string target = document(file.empty() ? page : page.parent_path() / file);
            EXPECT_NE(target, "(none)") << page << ": " << link;
            EXPECT_TRUE(anchor.empty() || withanchors(target).find("#-" + anchor.substr(1) + '\n') != std::string::npos)
                << page << ": " << link;
        }
}

// A desktop finds the entry of a window by this name.
TEST(documents, theDesktopEntryNamesTheWindowsAsTheProgramDoes) {
    const std::string entry = document("packaging/tessaly.desktop"), program = document("windows/qt/program/main.cpp");
    EXPECT_NE(entry.find("\nStartupWMClass=tessaly\n"), std::string::npos);
    EXPECT_NE(program.find("setDesktopFileName(\"tessaly\")"), std::string::npos);
    EXPECT_NE(program.find("setApplicationName(\"tessaly\")"), std::string::npos);
}
