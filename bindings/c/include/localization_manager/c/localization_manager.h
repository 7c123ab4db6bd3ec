/* The texts of a program, for C and for whatever can call C. */
#ifndef LOCALIZATION_MANAGER_C_H
#define LOCALIZATION_MANAGER_C_H

#include <stddef.h>

#if defined(_WIN32) && defined(LMC_BUILDS_LIBRARY)
#define LMC_API __declspec(dllexport)
#elif defined(_WIN32)
#define LMC_API __declspec(dllimport)
#else
#define LMC_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* All strings are UTF-8, end with a zero and are copied as far as they are kept. Strings that are
 * returned as "char*" belong to the caller, who gives them back with lmc_free. A null where something
 * has to be is a failure like any other: nothing here ends the program, and no exception leaves.
 *
 * Every function may be called from several threads at once, also with the same handle; a handle is
 * closed when no thread uses it any more. Functions that fail say so by what they return, and
 * lmc_last_error tells the thread why. */

/* An opened localisation tree. */
typedef struct lmc_tree lmc_tree;

/* The texts of one scope for one user. */
typedef struct lmc_texts lmc_texts;

/* What lmc_text returns when no culture has the key, or the text cannot be made because a parameter
 * is missing or a plural form wrong. */
typedef enum lmc_missing {
    LMC_MISSING_KEY = 0,        /* "Menu.Open" */
    LMC_MISSING_MARKED_KEY = 1, /* "[Menu.Open]" */
    LMC_MISSING_NULL = 2        /* a null pointer */
} lmc_missing;

/* Why the thread's last call failed; empty when it did not. Also what went wrong on the way when it did
 * what it could: the key that lmc_text returned in a text's place, a culture whose sources lmc_open_texts
 * could not read, a name that lmc_path refused. Valid until the thread's next call. */
LMC_API const char* lmc_last_error(void);

/* Opens the tree in a directory.
 * alternative: directory of a tree that is searched first; null or empty for none.
 * module:      file of the localization manager; null to look for it where this library lies and in the
 *              places of the system's loader.
 * Returns null on failure. */
LMC_API lmc_tree* lmc_open(const char* root, const char* alternative, const char* module,
                           lmc_missing missing);

/* Texts and their tree may be closed in any order. Null does nothing. */
LMC_API void lmc_close(lmc_tree* tree);

/* The texts of a scope, a file name without ".lt". Its sources are read here: see lmc_state.
 * cultures: names such as "pt-br", most wanted first; where one has no text, the next is asked.
 * Returns null on failure: a culture is not known, or a name leads out of the tree. */
LMC_API lmc_texts* lmc_open_texts(const lmc_tree* tree, const char* scope,
                                  const char* const* cultures, size_t count);

/* Null does nothing. */
LMC_API void lmc_close_texts(lmc_texts* texts);

/* The cultures for this program's user, best first, separated by blanks; of those that the tree offers.
 * standard: the culture for users whom no other serves.
 * Returns null on failure. */
LMC_API char* lmc_user_cultures(const lmc_tree* tree, const char* standard);

/* The final text of a key.
 * variant:       the text of "key._variant" is taken if there is one; null or empty for none.
 * names, values: parameters that the text asks for with "$"; numbers as decimal digits.
 * count:         of both.
 * Returns null on failure, and where lmc_missing says so. */
LMC_API char* lmc_text(const lmc_texts* texts, const char* key, const char* variant,
                       const char* const* names, const char* const* values, size_t count);

/* 1 when a culture has the key, 0 when none has, -1 on failure. */
LMC_API int lmc_has(const lmc_texts* texts, const char* key);

/* The path of a resource file of the scope; null when there is none. */
LMC_API char* lmc_path(const lmc_texts* texts, const char* file);

/* Null when the sources of at least one culture could be read, else why not. */
LMC_API char* lmc_state(const lmc_texts* texts);

/* Reads all texts anew when a file has changed; who asks meanwhile is not held up.
 * Returns 1 when texts were replaced, 0 when nothing has changed, -1 when the files have mistakes, which
 * lmc_last_error tells: the texts then stay what they were. */
LMC_API int lmc_refresh(const lmc_tree* tree);

/* Gives a string back. Null does nothing. */
LMC_API void lmc_free(char* text);

#ifdef __cplusplus
}
#endif

#endif
