;;; localize-mode.el --- Localisation files, with Eglot  -*- lexical-binding: t; -*-

;;; Commentary:
;; Highlights localisation files, and has Eglot start `localize lsp' for them:
;;     (require 'localize-mode)
;;     (add-hook 'localize-mode-hook #'eglot-ensure)

;;; Code:

(defvar localize-mode-syntax-table
  (let ((table (make-syntax-table)))
    (modify-syntax-entry ?\; "<" table)
    (modify-syntax-entry ?\n ">" table)
    (modify-syntax-entry ?' "\"" table)
    (modify-syntax-entry ?\" "." table)
    (modify-syntax-entry ?\\ "\\" table)
    (modify-syntax-entry ?. "_" table)
    (modify-syntax-entry ?$ "'" table)
    table)
  "What letters mean in localisation files.")

(defvar localize-mode-font-lock
  '(("^[ \t]*\\([A-Za-z_][A-Za-z0-9_.]*\\)[ \t\n]*=" 1 font-lock-variable-name-face)
    ("\\$[A-Za-z_][A-Za-z0-9_.]*" . font-lock-type-face)
    ("\\_<[A-Za-z_][A-Za-z0-9_.]*" . font-lock-constant-face))
  "What is highlighted in localisation files.")

;;;###autoload
(define-derived-mode localize-mode prog-mode "Localize"
  "Major mode for localisation files."
  (setq-local comment-start "; ")
  (setq-local comment-end "")
  (setq-local font-lock-defaults '(localize-mode-font-lock)))

;;;###autoload
(add-to-list 'auto-mode-alist '("/Locs/[^/]*\\.lt\\'" . localize-mode))

(defvar eglot-server-programs)
(with-eval-after-load 'eglot
  (add-to-list 'eglot-server-programs '(localize-mode "localize" "lsp")))

(provide 'localize-mode)
;;; localize-mode.el ends here
