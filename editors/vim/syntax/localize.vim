" Localisation files.
if exists('b:current_syntax')
  finish
endif
syntax match localizeReference /\<[A-Za-z_][A-Za-z0-9_.]*/
syntax match localizeKey /\<[A-Za-z_][A-Za-z0-9_.]*\ze\_s*=/
syntax match localizeOperator /[=+:,]/
syntax match localizeParameter /\$[A-Za-z_][A-Za-z0-9_.]*/
syntax match localizeBrace /[{}]/
syntax match localizeEscape /\\[n'\\]/ contained
syntax region localizeString start=/'/ skip=/\\./ end=/'/ contains=localizeEscape
syntax match localizeComment /;.*/ contains=localizeNote
syntax match localizeNote /localize: \(ignore\|untranslated\).*/ contained

highlight default link localizeKey Identifier
highlight default link localizeReference Constant
highlight default link localizeOperator Operator
highlight default link localizeParameter Type
highlight default link localizeBrace Delimiter
highlight default link localizeEscape SpecialChar
highlight default link localizeString String
highlight default link localizeComment Comment
highlight default link localizeNote Todo

syntax sync minlines=50
let b:current_syntax = 'localize'
