-- Starts `localize lsp` for localisation files; one server serves all of them. Options in `g:localize`, see
-- docs/editors.md. Needs the filetypes of editors/vim.
local client

local function start(buffer)
  client = client or vim.lsp.start_client({
    name = 'localize',
    cmd = { 'localize', 'lsp' },
    root_dir = vim.fn.getcwd(),
    init_options = vim.g.localize,
    on_exit = function() client = nil end,
    on_attach = function(_, attached)
      local function map(keys, action)
        vim.keymap.set('n', keys, action, { buffer = attached })
      end
      vim.bo[attached].omnifunc = 'v:lua.vim.lsp.omnifunc'
      map('K', vim.lsp.buf.hover)
      map('gd', vim.lsp.buf.definition)
      map('gr', vim.lsp.buf.references)
      map('<F2>', vim.lsp.buf.rename)
      map('<leader>a', vim.lsp.buf.code_action)
    end,
  })
  if client then
    vim.lsp.buf_attach_client(buffer, client)
  end
end

vim.api.nvim_create_autocmd('FileType', {
  pattern = { 'localize', 'localizerule' },
  callback = function(event) start(event.buf) end,
})
