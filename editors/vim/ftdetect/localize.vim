" Localisation files and plural rules, where a tree has them. Vim takes the ending for another language's.
autocmd BufRead,BufNewFile */Locs/*.lt set filetype=localize
autocmd BufRead,BufNewFile Plural.rule set filetype=localizerule
