" Localisation files: comments, and keys as words.
if exists('b:did_ftplugin')
  finish
endif
let b:did_ftplugin = 1
setlocal commentstring=;\ %s comments=:; iskeyword+=.
let b:undo_ftplugin = 'setlocal commentstring< comments< iskeyword<'
