// Learners in Chromium or Firefox without a window, each in a browser of their own. The programs are in ZERIMO_BROWSER
// (chromium) and ZERIMO_FIREFOX (firefox-esr).
import { clearUp, fromPage, Learner } from "./learner.mjs";

const puppeteer = fromPage("puppeteer-core");
const browsers = {
  chromium: { executablePath: process.env.ZERIMO_BROWSER ?? "/usr/bin/chromium", args: ["--no-sandbox", "--disable-gpu"] },
  firefox: { browser: "firefox", executablePath: process.env.ZERIMO_FIREFOX ?? "/usr/bin/firefox-esr" },
};
let browser;

export async function openBrowser(name) {
  browser = await puppeteer.launch(browsers[name]);
}

export async function closeBrowser() {
  await browser?.close();
  clearUp();
}

/** `prepare` sees the driver's page before the learner comes. */
export async function withLearner({ width = 1280, height = 900, hash = "", touch = false, prepare = async () => {} }, work) {
  const context = await browser.createBrowserContext();
  const page = await context.newPage();
  const learner = new Learner(page, () => context.close());
  page.on("console", (message) => message.type() === "error" && learner.complaints.push(message.text()));
  page.on("pageerror", (error) => learner.complaints.push(String(error)));
  try {
    await page.setViewport({ width, height, hasTouch: touch, isMobile: touch });
    await prepare(page);
    await learner.come(hash);
    await work(learner);
  } finally {
    await learner.leave();
  }
}

/** The same learner in another tab, which is in front. */
export async function anotherTab(learner) {
  const page = await learner.page.browserContext().newPage();
  const other = new Learner(page, () => page.close());
  await other.come();
  return other;
}
