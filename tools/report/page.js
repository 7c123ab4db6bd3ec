
'use strict';
// Lists stand in <noscript>, one item a line: without scripts the browser shows them; here only what
// passes the filters, and of that only what is near, becomes part of the page.
document.documentElement.classList.add('scripted');
const PAGE = 40;
const escaped = text => text.replace(/&/g, '&amp;').replace(/</g, '&lt;').replace(/>/g, '&gt;')
  .replace(/"/g, '&quot;').replace(/'/g, '&#39;');
const element = (name, properties, ...children) => {
  const made = Object.assign(document.createElement(name), properties);
  made.append(...children);
  return made;
};
const cultures = [...document.querySelectorAll('.matrix th[scope=row]')].map(cell => cell.textContent.trim());
const scopes = [...document.querySelectorAll('.matrix th[scope=col]:not(.all)')].map(cell => cell.textContent);

class List {
  constructor(name, filters) {
    const source = document.getElementById(name + '-data');
    this.lines = source.textContent.split('\n').filter(line => line.startsWith('<li'));
    this.words = new Array(this.lines.length);
    this.form = document.querySelector(`[data-for=${name}]`);
    this.found = [];
    this.list = element('ul', {className: name});
    this.more = element('button', {className: 'more', type: 'button', onclick: () => this.show(), textContent: 'Show more'});
    source.after(this.list, this.more);
    source.remove();
    this.inputs = {text: element('input', {type: 'search', oninput: () => this.later()})};
    this.form.append(element('label', {textContent: 'Search'}, this.inputs.text));
    for (const [field, [label, values]] of Object.entries(filters)) {
      this.inputs[field] = element('select', {onchange: () => this.filter()}, new Option('all', ''),
        ...values.map(value => new Option(value, value)));
      this.form.append(element('label', {textContent: label}, this.inputs[field]));
    }
    this.output = element('output', {ariaLive: 'polite'});
    this.form.append(this.output);
    this.form.onsubmit = () => false;
    this.form.hidden = !this.lines.length;
    new IntersectionObserver(entries => entries[0].isIntersecting && this.show(), {rootMargin: '600px'})
      .observe(this.more);
    this.filter();
    this.prepare(0);
  }
  // Searching needs the words of all lines, which are taken out of them while nothing else is to do.
  prepare(from) {
    const until = Math.min(from + 200, this.lines.length);
    for (let i = from; i < until; ++i) this.wordsOf(i);
    if (until < this.lines.length) (window.requestIdleCallback || setTimeout)(() => this.prepare(until));
  }
  wordsOf(i) {
    return this.words[i] ??= this.lines[i].replace(/<[^>]*>/g, '\n').toLowerCase();
  }
  later() {
    clearTimeout(this.timer);
    this.timer = setTimeout(() => this.filter(), 80);
  }
  get(field) { return this.inputs[field]?.value || ''; }
  filter() {
    const query = escaped(this.get('text').trim().toLowerCase());
    this.found = [];
    for (let i = 0; i < this.lines.length; ++i) {
      const line = this.lines[i];
      if (this.passes(line, line.slice(0, line.indexOf('>') + 1)) && (!query || this.wordsOf(i).includes(query))) {
        this.found.push(i);
      }
    }
    this.list.replaceChildren();
    this.shown = 0;
    this.output.value = `${this.found.length} of ${this.lines.length}`;
    this.show();
  }
  show() {
    const next = this.found.slice(this.shown, this.shown + PAGE);
    this.shown += next.length;
    this.list.insertAdjacentHTML('beforeend', next.map(i => this.lines[i]).join(''));
    this.more.hidden = this.shown >= this.found.length;
    this.shape();
  }
  shape() {}
}

const REFERENCE = document.querySelector('header p b').textContent;
const LETTERS = {done: 'd', stale: 's', missing: 'm', faulty: 'f'};
class Texts extends List {
  row(culture) { return `><th>${escaped(culture)}<`; }
  passes(line, head) {
    const scope = this.get('scope'), culture = this.get('culture'), letter = LETTERS[this.get('state')];
    if (scope && !head.includes(`data-s="${escaped(scope)}"`)) return false;
    if (!letter) return true;
    return culture ? line.includes(`<tr class=${letter}${this.row(culture)}`) : head.includes('data-t=') &&
      head.slice(head.indexOf('data-t=') + 7).includes(letter);
  }
  shape() {
    const culture = this.get('culture');
    if (!culture) return;
    for (const row of this.list.querySelectorAll('tr')) {
      const name = row.firstChild.textContent;
      row.hidden = name !== culture && name !== REFERENCE;
    }
  }
}
class Findings extends List {
  passes(line, head) {
    const part = (field, value) => !this.get(field) || head.includes(value(escaped(this.get(field))));
    return part('severity', value => `data-v=${value} `) && part('rule', value => `data-r=${value} `) &&
      this.names(head, 'data-c', 'culture') && this.names(head, 'data-s', 'scope');
  }
  names(head, attribute, field) {
    if (!this.get(field)) return true;
    const begin = head.indexOf(attribute + '="') + attribute.length + 2;
    return head.slice(begin, head.indexOf('"', begin)).includes(` ${escaped(this.get(field))} `);
  }
}

const rules = [...new Set(document.getElementById('findings-data').textContent.match(/^<li data-v=\w+ data-r=[\w-]+/gm) || [])]
  .map(head => head.slice(head.indexOf('data-r=') + 7));
const findings = new Findings('findings', {
  severity: ['Severity', ['error', 'warning']], rule: ['Rule', [...new Set(rules)].sort()],
  culture: ['Culture', cultures], scope: ['Scope', scopes]});
const texts = new Texts('texts', {
  culture: ['Culture', cultures], scope: ['Scope', scopes], state: ['State', Object.keys(LETTERS)]});

document.querySelector('.matrix').addEventListener('click', event => {
  const cell = event.target.closest('a');
  if (!cell) return;
  texts.inputs.culture.value = cell.dataset.c;
  texts.inputs.scope.value = cell.dataset.s;
  texts.filter();
});
document.addEventListener('keydown', event => {
  if (event.key === '/' && !/INPUT|SELECT/.test(document.activeElement.tagName)) {
    event.preventDefault();
    texts.inputs.text.focus();
  }
});
const isDark = () => document.documentElement.dataset.theme
  ? document.documentElement.dataset.theme === 'dark' : matchMedia('(prefers-color-scheme: dark)').matches;
const theme = element('button', {type: 'button', textContent: 'Light or dark',
  onclick: () => { document.documentElement.dataset.theme = isDark() ? 'light' : 'dark'; }});
document.querySelector('nav').append(theme);
