/* The library for C: texts, failures and threads of a host in C11. Started with the samples'
 * directory, and with the cultures of the user, of whom "de" thinks least. */
#include <pthread.h>
#include <stdio.h>
#include <string.h>

#include "localization_manager/c/localization_manager.h"

static int failures = 0;

static void expect_at(int line, int is_right, const char* what) {
    if (!is_right) {
        fprintf(stderr, "line %d: %s: %s\n", line, what, lmc_last_error());
        ++failures;
    }
}
#define EXPECT(condition) expect_at(__LINE__, (condition), #condition)

/* Compares a returned string, which may be null, and gives it back. */
static int is(char* text, const char* expected) {
    const int same =
        text != NULL && expected != NULL ? strcmp(text, expected) == 0 : text == expected;
    if (!same) {
        fprintf(stderr, "got '%s', not '%s'\n", text != NULL ? text : "(null)",
                expected != NULL ? expected : "(null)");
    }
    lmc_free(text);
    return same;
}

static int failed_with(const char* message) {
    return strstr(lmc_last_error(), message) != NULL;
}

static char* files_selected(const lmc_texts* texts, const char* count) {
    const char* const names[] = {"count"};
    const char* const values[] = {count};
    return lmc_text(texts, "Files.Selected", NULL, names, values, 1);
}

enum { kCalls = 20000 };
static const lmc_texts* shared;

/* Returns null when every text is its own thread's. */
static void* ask(void* count) {
    int wrong = 0;
    char expected[64];
    snprintf(expected, sizeof expected, "%s Dateien ausgewählt", (const char*)count);
    for (int i = 0; i < kCalls; ++i) {
        char* const text = files_selected(shared, count);
        wrong += text == NULL || strcmp(text, expected) != 0 ? 1 : 0;
        lmc_free(text);
        char* const missing = lmc_text(shared, count, NULL, NULL, NULL, 0);
        wrong += missing == NULL && strstr(lmc_last_error(), count) != NULL ? 0 : 1;
        lmc_free(missing);
    }
    return wrong == 0 ? NULL : count;
}

static void test_threads(lmc_tree* tree) {
    static char first[] = "22";
    static char second[] = "333";
    const char* const cultures[] = {"de"};
    lmc_texts* const texts = lmc_open_texts(tree, "main", cultures, 1);
    shared = texts;
    pthread_t other = 0;
    void* wrong = NULL;
    EXPECT(pthread_create(&other, NULL, ask, first) == 0);
    EXPECT(ask(second) == NULL);
    EXPECT(pthread_join(other, &wrong) == 0 && wrong == NULL);
    lmc_close_texts(texts);
}

static void test_failures(lmc_tree* tree) {
    const char* const unknown[] = {"xx"};
    const char* const outside[] = {"en-../x"};
    const char* const null_name[] = {NULL};
    const char* const english[] = {"en"};
    EXPECT(lmc_open("/nowhere", NULL, NULL, LMC_MISSING_KEY) == NULL &&
           failed_with("root localization URI has to be directory"));
    EXPECT(lmc_open(NULL, NULL, NULL, LMC_MISSING_KEY) == NULL &&
           failed_with("root must not be null"));
    EXPECT(lmc_open(".", NULL, "none.so", LMC_MISSING_KEY) == NULL &&
           failed_with("cannot load module"));
    EXPECT(lmc_open_texts(tree, "main", unknown, 1) == NULL && failed_with("unknown culture 'xx'"));
    EXPECT(lmc_open_texts(tree, "main", outside, 1) == NULL &&
           failed_with("leads out of the tree"));
    EXPECT(lmc_open_texts(tree, "main", null_name, 1) == NULL && failed_with("must not be null"));
    EXPECT(lmc_open_texts(tree, "main", NULL, 1) == NULL && failed_with("must not be null"));
    EXPECT(lmc_open_texts(tree, "main", english, 0) == NULL && failed_with("no culture is given"));
    EXPECT(lmc_open_texts(NULL, "main", english, 1) == NULL && failed_with("must not be null"));
    EXPECT(is(lmc_user_cultures(tree, NULL), NULL) && failed_with("must not be null"));
    EXPECT(is(lmc_text(NULL, "Greeting", NULL, NULL, NULL, 0), NULL) && failed_with("texts"));
    EXPECT(lmc_has(NULL, "Greeting") == -1 && lmc_refresh(NULL) == -1);
    EXPECT(is(lmc_state(NULL), NULL) && failed_with("texts must not be null"));
    lmc_close(NULL);
    lmc_close_texts(NULL);

    lmc_texts* const texts = lmc_open_texts(tree, "main", english, 1);
    EXPECT(is(lmc_text(texts, NULL, NULL, NULL, NULL, 0), NULL) && failed_with("key"));
    EXPECT(is(lmc_text(texts, "Greeting", NULL, NULL, NULL, 1), NULL) &&
           failed_with("must not be null"));
    EXPECT(is(lmc_text(texts, "Greeting", NULL, NULL, NULL, 0), NULL) && failed_with("$userName"));
    EXPECT(is(lmc_path(texts, "none.png"), NULL) && is(lmc_path(texts, NULL), NULL));
    lmc_close_texts(texts);

    lmc_texts* const none = lmc_open_texts(tree, "none", english, 1);
    char* const state = lmc_state(none);
    EXPECT(state != NULL && strstr(state, "cannot find localization file 'none.lt'") != NULL);
    lmc_free(state);
    lmc_close_texts(none);
}

static void test_texts(const char* root, const char* alternative, const char* user_cultures) {
    lmc_tree* const tree = lmc_open(root, alternative, NULL, LMC_MISSING_MARKED_KEY);
    const char* const cultures[] = {"de", "en-au"};
    const char* const names[] = {"albums", "photos"};
    const char* const values[] = {"2", "0"};
    lmc_texts* const texts = lmc_open_texts(tree, "main", cultures, 2);
    EXPECT(is(lmc_user_cultures(tree, "de"), user_cultures));
    lmc_close(tree); /* the texts need it no more */
    EXPECT(is(lmc_state(texts), NULL));
    EXPECT(is(files_selected(texts, "1"), "1 Datei ausgewählt"));
    EXPECT(is(lmc_text(texts, "App.Name", "none", NULL, NULL, 0), "Calmirot"));
    EXPECT(is(lmc_text(texts, "overview", "", names, values, 2), "0 Fotos · 2 Alben"));
    EXPECT(is(lmc_text(texts, "No.Such", NULL, NULL, NULL, 0), "[No.Such]"));
    EXPECT(failed_with("'No.Such'"));
    EXPECT(lmc_has(texts, "greeting") == 1 && lmc_has(texts, "No.Such") == 0);
    EXPECT(strcmp(lmc_last_error(), "") == 0);
    char* const path = lmc_path(texts, "logo.png");
    FILE* const file = path != NULL ? fopen(path, "rb") : NULL;
    EXPECT(file != NULL);
    if (file != NULL) {
        fclose(file);
    }
    lmc_free(path);
    lmc_close_texts(texts);
}

int main(int count, char** arguments) {
    char root[4096];
    char alternative[4096];
    if (count != 3) {
        return 2;
    }
    snprintf(root, sizeof root, "%s/tree", arguments[1]);
    snprintf(alternative, sizeof alternative, "%s/rebranded", arguments[1]);
    test_texts(root, alternative, arguments[2]);
    lmc_tree* const tree = lmc_open(root, NULL, NULL, LMC_MISSING_NULL);
    EXPECT(tree != NULL && lmc_refresh(tree) == 0);
    test_failures(tree);
    test_threads(tree);
    lmc_close(tree);
    return failures == 0 ? 0 : 1;
}
