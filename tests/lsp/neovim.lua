-- A person's way through a tree with mistakes: sees them, hovers, completes, jumps, renames, has one mended, saves.
local tree = vim.env.TREE

local function check(holds, what)
  if not holds then
    io.stderr:write('failed: ' .. what .. '\n')
    vim.cmd('cquit')
  end
end

local function wait(what, condition)
  check(vim.wait(20000, condition, 50), what)
end

local function codes()
  local found = {}
  for _, diagnostic in ipairs(vim.diagnostic.get(0)) do
    found[#found + 1] = diagnostic.code or diagnostic.user_data.lsp.code
  end
  table.sort(found)
  return table.concat(found, ' ')
end

local function ask(method, change)
  local params = vim.lsp.util.make_position_params()
  for name, value in pairs(change or {}) do
    params[name] = value
  end
  local replies = vim.lsp.buf_request_sync(0, method, params, 20000)
  local _, reply = next(replies or {})
  check(reply and reply.result, method)
  return reply.result
end

local function go(pattern)
  check(vim.fn.search(pattern, 'cw') ~= 0, 'search ' .. pattern)
end

local function run()
  vim.cmd('edit ' .. tree .. '/de/Locs/main.lt')
  wait('diagnostics, not ' .. codes(), function() return codes() == 'escape missing-key' end)

  for _, diagnostic in ipairs(vim.diagnostic.get(0)) do
    local isError = diagnostic.severity == vim.diagnostic.severity.ERROR
    local code = diagnostic.code or diagnostic.user_data.lsp.code
    check(isError == (code == 'missing-key'), 'severity of ' .. diagnostic.message)
  end

  go('Files.Selected')
  local text = ask('textDocument/hover').contents.value
  for _, part in ipairs({ '1: 1 Datei ausgewählt', '2: 2 files selected', '5: Выбрано 5 файлов', 'de/Locs/main.lt' }) do
    check(text:find(part, 1, true), 'hover has ' .. part)
  end

  -- What is typed, and not saved, counts.
  vim.fn.append('$', "Greeting = 'Hallo, ' + $u")
  vim.o.virtualedit = 'onemore'
  vim.api.nvim_win_set_cursor(0, { vim.fn.line('$'), 25 })
  local items = ask('textDocument/completion').items
  check(#items == 1 and items[1].label == 'userName', 'completion of a parameter')
  vim.lsp.util.apply_text_edits({ items[1].textEdit }, 0, 'utf-16')
  wait('mended by typing', function() return codes() == 'escape' end)
  vim.cmd('normal! G0')
  text = ask('textDocument/hover').contents.value
  check(text:find('Hallo, ‹userName›', 1, true), 'hover over what is typed')

  go('\\C\\\\p')
  local position = vim.lsp.util.make_position_params().position
  local actions = ask('textDocument/codeAction', {
    range = { start = position, ['end'] = position }, context = { diagnostics = {} },
  })
  check(actions[1].title == 'Write the backslash twice', 'code action')
  vim.lsp.util.apply_workspace_edit(actions[1].edit, 'utf-16')
  wait('mended by an action', function() return codes() == '' end)

  go('Photos.Count')
  vim.lsp.buf.rename('Pictures.Count')
  wait('rename', function() return vim.fn.search('Overview *= Pictures.Count', 'nw') ~= 0 end)

  go('App.Name')
  vim.lsp.buf.definition()
  wait('jump', function() return vim.fn.expand('%:t') == 'common.lt' end)
  check(vim.fn.getline('.'):match('^App.Name'), 'jump to the key')
  vim.cmd('wall')
end

local ok, why = pcall(run)
check(ok, tostring(why))
vim.cmd('qall')
