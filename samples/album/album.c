/* The photo album in C: in the user's culture, or in the cultures that it is started with. Each line on
 * standard input makes it look for changed files.
 *
 *     album_c TREE [CULTURE...]
 */
#include <localization_manager/c/localization_manager.h>
#include <stdio.h>
#include <string.h>

static void show(const lmc_texts* texts, const char* key, const char* variant,
                 const char* const* names, const char* const* values, size_t count) {
    char* const text = lmc_text(texts, key, variant, names, values, count);
    puts(text != NULL ? text : lmc_last_error());
    lmc_free(text);
}

static void show_all(const lmc_texts* texts) {
    const char* const names[] = {"album", "friend"};
    const char* const values[] = {"Rügen", "Ada"};
    const char* const photos_name[] = {"photos"};
    const char* const photos[] = {"0", "1", "3"};
    show(texts, "Window.Title", NULL, names, values, 1);
    for (size_t i = 0; i < 3; ++i) {
        show(texts, "Photos.Count", NULL, photos_name, &photos[i], 1);
    }
    show(texts, "Share.Invite", "close", names, values, 2);
    show(texts, "Not.Written.Yet", NULL, NULL, NULL, 0);
}

/* The texts in the user's cultures. */
static lmc_texts* open_for_user(const lmc_tree* tree) {
    enum { kMost = 16 };
    const char* cultures[kMost];
    size_t count = 0;
    char* const names = lmc_user_cultures(tree, "en");
    if (names == NULL) {
        return NULL;
    }
    for (char* name = strtok(names, " "); name != NULL && count < kMost; name = strtok(NULL, " ")) {
        cultures[count++] = name;
    }
    lmc_texts* const texts = lmc_open_texts(tree, "main", cultures, count);
    lmc_free(names);
    return texts;
}

int main(int argc, char** argv) {
    char line[256];
    lmc_tree* const tree = lmc_open(argc > 1 ? argv[1] : ".", NULL, NULL, LMC_MISSING_MARKED_KEY);
    lmc_texts* const texts =
        tree == NULL ? NULL
        : argc > 2
            ? lmc_open_texts(tree, "main", (const char* const*)(argv + 2), (size_t)(argc - 2))
            : open_for_user(tree);
    char* const mistake = texts != NULL ? lmc_state(texts) : NULL;
    if (texts == NULL || mistake != NULL) {
        fprintf(stderr, "%s\n", mistake != NULL ? mistake : lmc_last_error());
        lmc_free(mistake);
        lmc_close_texts(texts);
        lmc_close(tree);
        return 1;
    }

    show_all(texts);
    while (fgets(line, sizeof line, stdin) != NULL) {
        const int outcome = lmc_refresh(tree);
        if (outcome > 0) {
            show_all(texts);
        } else if (outcome < 0) {
            fprintf(stderr, "%s\n", lmc_last_error());
        }
    }
    lmc_close_texts(texts);
    lmc_close(tree);
    return 0;
}
