// Draws the dots of a glass on a canvas, each as the same number of the screen's own pixels, so that all are sharp at
// every size of the window, zoom and density of the screen.

// As in the pictures, with the red last: a dot and its place when it is off, and the fine line behind them, from three pixels on.
const DOT = 0xff1e2a21;
const DOT_GAP = 0xff36493e;
const GLASS = 0xffacd4c8;
const GLASS_GAP = 0xffb5dacf;
const GAP_FROM = 3;
const MARGIN = 2; // around the dots, in dots

export class Glass {
  #canvas;
  #rows = [];
  #size = null; // of the canvas, in pixels of the screen

  constructor(canvas) {
    this.#canvas = canvas;
    new ResizeObserver(() => this.#fit()).observe(canvas.parentElement.parentElement);
    const own = new ResizeObserver(([entry]) => {
      const exact = entry.devicePixelContentBoxSize?.[0];
      this.#size = exact ? [exact.inlineSize, exact.blockSize]
        : [entry.contentRect.width, entry.contentRect.height].map((length) => Math.round(length * devicePixelRatio));
      this.#paint();
    });
    try {
      own.observe(canvas, {box: "device-pixel-content-box"});
    } catch {
      own.observe(canvas); // a browser that does not tell; its zoom may cost the sharpness
    }
  }

  /// The rows are texts of "#" and ".".
  show(rows) {
    const isOther = rows.length !== this.#rows.length || rows[0]?.length !== this.#rows[0]?.length;
    this.#rows = rows;
    if (isOther)
      this.#fit();
    this.#paint();
  }

  /// Makes the canvas as large as whole pixels for each dot allow.
  #fit() {
    if (this.#rows.length === 0)
      return;
    const pane = this.#canvas.parentElement;
    const columns = this.#rows[0].length + 2 * MARGIN;
    const room = parseFloat(getComputedStyle(pane.parentElement).width) * devicePixelRatio;
    const scale = Math.max(1, Math.floor(room / columns));
    pane.style.width = `${columns * scale / devicePixelRatio}px`;
    pane.style.height = `${(this.#rows.length + 2 * MARGIN) * scale / devicePixelRatio}px`;
  }

  #paint() {
    if (!this.#size || this.#rows.length === 0)
      return;
    const [width, height] = this.#size;
    const columns = this.#rows[0].length;
    if (width < columns || height < this.#rows.length)
      return; // it is about to grow, or hidden
    const scale = Math.max(1, Math.floor(Math.min((width + 1) / (columns + 2 * MARGIN), (height + 1) / (this.#rows.length + 2 * MARGIN))));
    const left = Math.floor((width - columns * scale) / 2);
    const top = Math.floor((height - this.#rows.length * scale) / 2);
    Object.assign(this.#canvas, {width, height});
    Object.assign(this.#canvas.dataset, {scale, left, top});
    const image = new ImageData(width, height);
    const pixels = new Uint32Array(image.data.buffer).fill(GLASS);
    this.#rows.forEach((row, y) => {
      for (let x = 0; x < columns; ++x)
        drawDot(pixels, width, left + x * scale, top + y * scale, scale, row[x] === "#");
    });
    this.#canvas.getContext("2d").putImageData(image, 0, 0);
  }
}

function drawDot(pixels, width, left, top, scale, isOn) {
  for (let y = 0; y < scale; ++y) {
    for (let x = 0; x < scale; ++x) {
      const isGap = scale >= GAP_FROM && (x === scale - 1 || y === scale - 1);
      pixels[(top + y) * width + left + x] = isOn ? (isGap ? DOT_GAP : DOT) : (isGap ? GLASS_GAP : GLASS);
    }
  }
}
